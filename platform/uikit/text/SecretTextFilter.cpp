// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/text/SecretTextFilter.h"

#include <QInputMethodQueryEvent>

void SecretTextFilter::setEditor(QQuickItem *editor)
{
    m_editor = editor;
    m_editor->installEventFilter(this);
}

bool SecretTextFilter::eventFilter(QObject *editor, QEvent *event)
{
    if (!m_enabled || event->type() != QEvent::InputMethodQuery) {
        return QObject::eventFilter(editor, event);
    }
    editor->event(event);
    auto &query = *static_cast<QInputMethodQueryEvent *>(event);
    for (const Qt::InputMethodQuery text : {Qt::ImSurroundingText, Qt::ImCurrentSelection,
                                            Qt::ImTextBeforeCursor, Qt::ImTextAfterCursor}) {
        if (query.queries().testFlag(text)) {
            query.setValue(text, QString(query.value(text).toString().size(), u'\u2022'));
        }
    }
    return true;
}
