// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

/// Put into a delegate that has an `index`: the delegates of its view stand in the order of their
/// indices, for screen readers and for Tab, whenever each was made or moved.
class ReadingOrder : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The delegate's own.
    Q_PROPERTY(int index MEMBER m_index WRITE setIndex REQUIRED)

public:
    void setIndex(int index);

protected:
    /// Once a frame, when the view has told every delegate its index.
    void updatePolish() override;

private:
    int m_index = -1;
};
