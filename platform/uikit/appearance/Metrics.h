// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRectF>
#include <QtQmlIntegration>

#include <optional>

/// Lengths, in points, and other measures that everything drawn shares.
class Metrics : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(double hairline READ hairline NOTIFY changed FINAL)
    Q_PROPERTY(int direction READ direction NOTIFY changed FINAL)
    Q_PROPERTY(QRectF keyboard READ keyboard WRITE setKeyboard NOTIFY keyboardChanged FINAL)
    Q_PROPERTY(double margin MEMBER margin CONSTANT FINAL)
    Q_PROPERTY(double row MEMBER row CONSTANT FINAL)
    Q_PROPERTY(double rowMargin MEMBER rowMargin CONSTANT FINAL)
    Q_PROPERTY(double lineSpacing MEMBER lineSpacing CONSTANT FINAL)
    Q_PROPERTY(double rowImage MEMBER rowImage CONSTANT FINAL)
    Q_PROPERTY(double sectionSpace MEMBER sectionSpace CONSTANT FINAL)
    Q_PROPERTY(double footerSpaceAbove MEMBER footerSpaceAbove CONSTANT FINAL)
    Q_PROPERTY(double footerSpaceBelow MEMBER footerSpaceBelow CONSTANT FINAL)
    Q_PROPERTY(double navigationBar MEMBER navigationBar CONSTANT FINAL)
    Q_PROPERTY(double barGlyph MEMBER barGlyph CONSTANT FINAL)
    Q_PROPERTY(double barButtonShare MEMBER barButtonShare CONSTANT FINAL)
    Q_PROPERTY(double swipeEdge MEMBER swipeEdge CONSTANT FINAL)
    Q_PROPERTY(double tabBar MEMBER tabBar CONSTANT FINAL)
    Q_PROPERTY(double widestTab MEMBER widestTab CONSTANT FINAL)
    Q_PROPERTY(double refreshControl MEMBER refreshControl CONSTANT FINAL)
    Q_PROPERTY(double pullToRefresh MEMBER pullToRefresh CONSTANT FINAL)
    Q_PROPERTY(double alertWidth MEMBER alertWidth CONSTANT FINAL)
    Q_PROPERTY(double alertRadius MEMBER alertRadius CONSTANT FINAL)
    Q_PROPERTY(double alertPadding MEMBER alertPadding CONSTANT FINAL)
    Q_PROPERTY(double alertFieldSpace MEMBER alertFieldSpace CONSTANT FINAL)
    Q_PROPERTY(double alertFieldSpacing MEMBER alertFieldSpacing CONSTANT FINAL)
    Q_PROPERTY(double buttonPadding MEMBER buttonPadding CONSTANT FINAL)
    Q_PROPERTY(double menuWidth MEMBER menuWidth CONSTANT FINAL)
    Q_PROPERTY(double fieldRadius MEMBER fieldRadius CONSTANT FINAL)
    Q_PROPERTY(double fieldInset MEMBER fieldInset CONSTANT FINAL)
    Q_PROPERTY(double fieldPadding MEMBER fieldPadding CONSTANT FINAL)
    Q_PROPERTY(double highlightedOpacity MEMBER highlightedOpacity CONSTANT FINAL)
    Q_PROPERTY(double focusRing MEMBER focusRing CONSTANT FINAL)
    Q_PROPERTY(double focusRingMargin MEMBER focusRingMargin CONSTANT FINAL)

public:
    static constexpr double margin = 16;
    static constexpr double row = 44;
    /// The least width and height in which a control is touched.
    static constexpr double smallestTarget = 44;
    /// Above and below the contents of a row.
    static constexpr double rowMargin = 11;
    /// Between two texts, one below the other.
    static constexpr double lineSpacing = 3;
    static constexpr double rowImage = 29;
    /// Above and below a section; twice that above the first one.
    static constexpr double sectionSpace = 18;
    /// Above and below the text that follows a section.
    static constexpr double footerSpaceAbove = 7;
    static constexpr double footerSpaceBelow = 11;
    static constexpr double navigationBar = 44;
    static constexpr double barGlyph = 22;
    /// The part of a bar that a button beside the title has at most.
    static constexpr double barButtonShare = 0.28;
    /// How near the edge a finger begins that moves a page away.
    static constexpr double swipeEdge = 20;
    static constexpr double tabBar = 49;
    static constexpr double widestTab = 160;
    static constexpr double refreshControl = 60;
    /// How far a table is pulled down to be refreshed.
    static constexpr double pullToRefresh = 80;
    static constexpr double alertWidth = 270;
    static constexpr double alertRadius = 14;
    /// Above and below an alert's texts, and above its fields.
    static constexpr double alertPadding = 19;
    static constexpr double alertFieldSpace = 13;
    static constexpr double alertFieldSpacing = 8;
    /// Above and below the title of an alert's button or a menu's line, together.
    static constexpr double buttonPadding = 16;
    static constexpr double menuWidth = 160;
    static constexpr double fieldRadius = 5;
    static constexpr double fieldInset = 7;
    /// Above and below a field's text, together.
    static constexpr double fieldPadding = 12;
    /// The opacity of a control while a finger is on it.
    static constexpr double highlightedOpacity = 0.3;
    static constexpr double focusRing = 2;
    /// From the edge of a control to the ring around it.
    static constexpr double focusRingMargin = 4;

    /// Follows the application's traits, which must exist, and the input method.
    Metrics();

    /// One device pixel.
    [[nodiscard]] double hairline() const;
    /// Where lines are read to: 1 for the right, -1 for the left.
    [[nodiscard]] int direction() const;

    /// Where the on-screen keyboard is in the window; empty for nowhere. Once it is set, it follows
    /// the input method no longer.
    [[nodiscard]] QRectF keyboard() const;
    void setKeyboard(const QRectF &keyboard);
    /// How much of a window of that height an on-screen keyboard covers. A binding hands over
    /// `keyboard`, and so follows it.
    Q_INVOKABLE [[nodiscard]] static double covered(double height, const QRectF &keyboard);

Q_SIGNALS:
    void changed();
    void keyboardChanged();

private:
    std::optional<QRectF> m_keyboard;
};
