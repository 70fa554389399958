// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/text/EditActions.h"

namespace {

int number(const QObject &editor, const char *name)
{
    return editor.property(name).toInt();
}

int selected(const QObject &editor)
{
    return number(editor, "selectionEnd") - number(editor, "selectionStart");
}

bool canCopy(const QObject &editor, bool secret)
{
    return !secret && selected(editor) > 0;
}

struct Action {
    const char *title;
    const char *method;
    bool (*isOffered)(const QObject &editor, bool secret);
};

constexpr Action actions[] = {
    {QT_TRANSLATE_NOOP("EditActions", "Cut"), "cut", canCopy},
    {QT_TRANSLATE_NOOP("EditActions", "Copy"), "copy", canCopy},
    {QT_TRANSLATE_NOOP("EditActions", "Paste"), "paste",
     [](const QObject &editor, bool) { return editor.property("canPaste").toBool(); }},
    {QT_TRANSLATE_NOOP("EditActions", "Select All"), "selectAll",
     [](const QObject &editor, bool) { return selected(editor) < number(editor, "length"); }},
};

} // namespace

QStringList EditActions::offered() const
{
    QStringList titles;
    for (const Action &action : actions) {
        if (m_editor && action.isOffered(*m_editor, m_secret)) {
            titles.append(tr(action.title));
        }
    }
    return titles;
}

void EditActions::perform(const QString &title)
{
    for (const Action &action : actions) {
        if (m_editor && tr(action.title) == title) {
            QMetaObject::invokeMethod(m_editor, action.method);
        }
    }
}

void EditActions::point(int position, bool select)
{
    m_editor->forceActiveFocus();
    if (selected(*m_editor) > 0 && position >= number(*m_editor, "selectionStart")
        && position <= number(*m_editor, "selectionEnd")) {
        return;
    }
    m_editor->setProperty("cursorPosition", position);
    if (!select) {
        return;
    }
    m_editor
        ->ungrabTouchPoints(); // or nothing would be selected any more when the finger is lifted
    QMetaObject::invokeMethod(m_editor, m_secret ? "selectAll" : "selectWord");
}
