// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/appearance/CALayer.h"
#include "platform/uikit/base/UIResponder.h"

#include <QPointer>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class UITapGestureRecognizer;

/// The base of every view. QML draws a view and knows its geometry; this object holds the values
/// that a screen sets, and gets the touches.
class UIView : public UIResponder {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(UIColor backgroundColor READ backgroundColor NOTIFY changed FINAL)
    Q_PROPERTY(UIColor tintColor READ tintColor NOTIFY changed FINAL)
    Q_PROPERTY(CALayer layer READ layer NOTIFY changed FINAL)
    Q_PROPERTY(QString accessibilityLabel READ accessibilityLabel NOTIFY changed FINAL)

public:
    UIView();
    ~UIView() override;

    [[nodiscard]] UIColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const UIColor &color) { assign(m_backgroundColor, color); }

    /// The accent of the contents; the system's blue unless set.
    [[nodiscard]] UIColor tintColor() const { return m_tintColor; }
    void setTintColor(const UIColor &color) { assign(m_tintColor, color); }

    [[nodiscard]] CALayer layer() const { return m_layer; }
    void setLayer(const CALayer &layer) { assign(m_layer, layer); }

    /// The name for screen readers; a control's own text unless set.
    [[nodiscard]] virtual QString accessibilityLabel() const;
    void setAccessibilityLabel(const QString &label)
    {
        assign(m_accessibilityLabel, std::optional(label));
    }

    /// The view that this one is a part of; null for none. QML decides its place there.
    [[nodiscard]] UIView *superview() const { return m_superview; }
    void addSubview(UIView &view) { view.m_superview = this; }
    /// Takes the keyboard from this view or the part of it that has it. Returns whether none has
    /// it now; nothing refuses, `force` or not.
    bool endEditing(bool force);

    void addGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer);
    [[nodiscard]] bool recognizesTaps() const { return !m_recognizers.empty(); }
    /// Runs the view's tap recognisers; for the drawing of the view.
    void tapped();

Q_SIGNALS:
    /// Some property of the view changed.
    void changed();

protected:
    /// Sets a property and announces it, if it is a new value.
    template <typename T>
    void assign(T &field, const T &value)
    {
        if (field == value) {
            return;
        }
        field = value;
        Q_EMIT changed();
    }

private:
    QPointer<UIView> m_superview;
    UIColor m_backgroundColor;
    UIColor m_tintColor = UIColor::systemBlueColor();
    CALayer m_layer;
    std::optional<QString> m_accessibilityLabel;
    std::vector<std::shared_ptr<UITapGestureRecognizer>> m_recognizers;
};
