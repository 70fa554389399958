// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/tables/UITableViewCell.h"
#include "platform/xlform/XLFormRowDescriptor.h"

#include <QPointer>

/// A row's title and the editor of its value. A row keeps its cell: it is not reused for another,
/// and the text in it outlives its drawing.
class XLFormCell : public UITableViewCell {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a form")

public:
    /// The cell of the class that the type of `row` asks for, configured.
    [[nodiscard]] static std::shared_ptr<XLFormCell> cellForRow(XLFormRowDescriptor &row);

    /// The view that has the keyboard while the row is edited.
    [[nodiscard]] virtual UIView *editor() = 0;
    /// Nothing: the editor says it all.
    [[nodiscard]] QString accessibilityLabel() const override { return {}; }

Q_SIGNALS:
    /// The user is done with this row.
    void returned();

protected:
    explicit XLFormCell(XLFormRowDescriptor &row);
    [[nodiscard]] virtual QString shownText() const = 0;
    virtual void showText(const QString &text) = 0;
    /// The user changed the text.
    void edited();

private:
    void setUp();
    void configure(const QString &keyPath, const QVariant &value);

    QPointer<XLFormRowDescriptor> m_row;
};
