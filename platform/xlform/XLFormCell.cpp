// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/xlform/XLFormCell.h"

#include "platform/uikit/base/Make.h"
#include "platform/xlform/XLFormTextFieldCell.h"
#include "platform/xlform/XLFormTextViewCell.h"

#include <QMetaProperty>

std::shared_ptr<XLFormCell> XLFormCell::cellForRow(XLFormRowDescriptor &row)
{
    std::shared_ptr<XLFormCell> cell;
    switch (row.rowType()) {
    case XLFormRowDescriptorType::Text:
        cell = make<XLFormTextFieldCell>(row);
        break;
    case XLFormRowDescriptorType::TextView:
        cell = make<XLFormTextViewCell>(row);
        break;
    }
    cell->setUp();
    return cell;
}

XLFormCell::XLFormCell(XLFormRowDescriptor &row) : m_row(&row)
{
    textLabel()->setText(row.title());
    setSelectionStyle(UITableViewCellSelectionStyle::None);
}

void XLFormCell::setUp()
{
    addSubview(*editor());
    editor()->setAccessibilityLabel(m_row->title());
    const auto update = [this] { showText(m_row->value().value_or(QString())); };
    connect(m_row, &XLFormRowDescriptor::valueChanged, this, update);
    update();
    const QVariantMap &configuration = m_row->cellConfigAtConfigure();
    for (auto entry = configuration.begin(); entry != configuration.end(); ++entry) {
        configure(entry.key(), entry.value());
    }
}

void XLFormCell::configure(const QString &keyPath, const QVariant &value)
{
    const QList<QByteArray> keys = keyPath.toLatin1().split('.');
    QObject *object = this;
    for (const QByteArray &key : keys.first(keys.size() - 1)) {
        if (object) {
            object = object->property(key.constData()).value<QObject *>();
        }
    }
    const int property =
        object ? object->metaObject()->indexOfProperty(keys.last().constData()) : -1;
    if (property < 0 || !object->metaObject()->property(property).write(object, value)) {
        qWarning("A form's cell has nothing to set at \"%s\"", qPrintable(keyPath));
    }
}

void XLFormCell::edited()
{
    if (m_row) {
        m_row->setValue(shownText());
    }
}
