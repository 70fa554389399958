// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

/// Put into a delegate that has an `index`: among what else its view has made it stands where it
/// belongs, for screen readers and for Tab, whenever it was made. The index is taken to stay.
class ReadingOrder : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

protected:
    void componentComplete() override;
};
