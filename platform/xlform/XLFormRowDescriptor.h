// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariantMap>

#include <memory>
#include <optional>

/// One line of text, or as many as are typed.
enum class XLFormRowDescriptorType { Text, TextView };

/// A row of a form: its name, its title and its value.
class XLFormRowDescriptor : public QObject {
    Q_OBJECT

public:
    [[nodiscard]] static std::shared_ptr<XLFormRowDescriptor>
    formRowDescriptorWithTag(const QString &tag, XLFormRowDescriptorType rowType,
                             const QString &title);

    /// The row's name among the form's values.
    [[nodiscard]] QString tag() const { return m_tag; }
    [[nodiscard]] XLFormRowDescriptorType rowType() const { return m_rowType; }
    [[nodiscard]] QString title() const { return m_title; }

    /// Whether the form is in error while the row has no value; false unless set.
    [[nodiscard]] bool isRequired() const { return m_required; }
    void setRequired(bool required) { m_required = required; }

    /// The text as it was entered; nil for an empty one. Blanks are text.
    [[nodiscard]] std::optional<QString> value() const { return m_value; }
    void setValue(const std::optional<QString> &value);

    /// Properties that the row's cell gets when it is made, by key path ("textView.placeholder").
    [[nodiscard]] QVariantMap &cellConfigAtConfigure() { return m_cellConfigAtConfigure; }

Q_SIGNALS:
    void valueChanged();

private:
    XLFormRowDescriptor(const QString &tag, XLFormRowDescriptorType rowType, const QString &title);

    QString m_tag;
    XLFormRowDescriptorType m_rowType;
    QString m_title;
    bool m_required = false;
    std::optional<QString> m_value;
    QVariantMap m_cellConfigAtConfigure;
};
