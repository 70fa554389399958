// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/Metrics.h"

#include "platform/uikit/appearance/Traits.h"

#include <QGuiApplication>
#include <QInputMethod>

#include <algorithm>

Metrics::Metrics()
{
    connect(&Traits::current(), &Traits::changed, this, &Metrics::changed);
    const QInputMethod *input = QGuiApplication::inputMethod();
    connect(input, &QInputMethod::visibleChanged, this, &Metrics::keyboardChanged);
    connect(input, &QInputMethod::keyboardRectangleChanged, this, &Metrics::keyboardChanged);
}

double Metrics::hairline() const
{
    return 1 / Traits::current().displayScale();
}

int Metrics::direction() const
{
    return Traits::current().isRightToLeft() ? -1 : 1;
}

QRectF Metrics::keyboard() const
{
    if (m_keyboard) {
        return *m_keyboard;
    }
    const QInputMethod *input = QGuiApplication::inputMethod();
    return input->isVisible() ? input->keyboardRectangle() : QRectF();
}

void Metrics::setKeyboard(const QRectF &keyboard)
{
    m_keyboard = keyboard;
    Q_EMIT keyboardChanged();
}

double Metrics::covered(double height, const QRectF &keyboard)
{
    return std::max(0.0, std::min(keyboard.height(), height - keyboard.y()));
}
