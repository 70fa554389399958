// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariantMap>

#include <memory>
#include <optional>

/// One line of text, or as many as are typed.
enum class XLFormRowDescriptorType { Text, TextView };

/// A row of a form: what it is called and what is entered in it.
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

    /// What is entered, to the letter; nil for nothing at all. Blanks are something.
    [[nodiscard]] std::optional<QString> value() const { return m_value; }
    void setValue(const std::optional<QString> &value);

    /// What the row's cell is given when it is made, by key path ("textView.placeholder").
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
