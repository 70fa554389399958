// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/controls/UIImageView.h"
#include "platform/uikit/controls/UILabel.h"

#include <QUrl>

/// The platform's names. Cells of both styles are drawn alike: an optional image, then text, and
/// smaller text below it once there is one.
enum class UITableViewCellStyle { Default = 0, Subtitle = 3 };
/// Whether a cell shows that it is pressed or selected.
enum class UITableViewCellSelectionStyle { None, Default };

/// The contents of a row of a table. Made by `make`; a table hands it from row to row.
/// The file that draws it is named by its class: Q_CLASSINFO("view", "Views/HeaderCellView.qml"),
/// inherited by subclasses. The file's root has a `required property <class> control` and the
/// implicit height that a row of automatic height gets.
class UITableViewCell : public UIView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a table")
    Q_CLASSINFO("view", "UIKit/UITableViewCellView.qml")
    Q_PROPERTY(QUrl viewUrl READ viewUrl CONSTANT FINAL)
    Q_PROPERTY(UIView *contentView READ contentView CONSTANT FINAL)
    Q_PROPERTY(UILabel *textLabel READ textLabel CONSTANT FINAL)
    Q_PROPERTY(UILabel *detailTextLabel READ detailTextLabel CONSTANT FINAL)
    Q_PROPERTY(UIImageView *imageView READ imageView CONSTANT FINAL)
    Q_PROPERTY(bool drawsSelection READ drawsSelection NOTIFY changed FINAL)
    Q_PROPERTY(bool selectable READ isSelectable NOTIFY changed FINAL)
    Q_PROPERTY(bool animatesSelection READ animatesSelection NOTIFY changed FINAL)

public:
    /// A cell without `reuseIdentifier` is not reused once its row has left the screen.
    explicit UITableViewCell(UITableViewCellStyle style = UITableViewCellStyle::Default,
                             const QString &reuseIdentifier = {});
    ~UITableViewCell() override;

    [[nodiscard]] QString reuseIdentifier() const { return m_reuseIdentifier; }
    /// Where the file named by Q_CLASSINFO lies.
    [[nodiscard]] QUrl viewUrl() const;

    [[nodiscard]] UIView *contentView() { return &m_contentView; }
    [[nodiscard]] UILabel *textLabel() { return &m_textLabel; }
    /// Drawn once it has a text.
    [[nodiscard]] UILabel *detailTextLabel() { return &m_detailTextLabel; }
    /// Drawn once it has an image.
    [[nodiscard]] UIImageView *imageView() { return &m_imageView; }

    [[nodiscard]] UITableViewCellSelectionStyle selectionStyle() const { return m_selectionStyle; }
    void setSelectionStyle(UITableViewCellSelectionStyle style) { assign(m_selectionStyle, style); }
    /// Whether choosing the row is of any use.
    [[nodiscard]] bool isSelectable() const
    {
        return m_selectionStyle != UITableViewCellSelectionStyle::None;
    }

    /// Called before the cell is handed out for another row; an override calls the base
    /// implementation first. Content stays as it is.
    virtual void prepareForReuse();

    virtual void setSelected(bool selected, bool animated);
    /// Whether a finger is on the row.
    [[nodiscard]] bool isHighlighted() const { return m_highlighted; }
    Q_INVOKABLE void setHighlighted(bool highlighted);

    [[nodiscard]] bool drawsSelection() const;
    /// Whether the last change of the selection is to be seen as a transition.
    [[nodiscard]] bool animatesSelection() const { return m_animatesSelection; }

    /// The labels' texts unless set.
    [[nodiscard]] QString accessibilityLabel() const override;

private:
    QString m_reuseIdentifier;
    UIView m_contentView;
    UILabel m_textLabel;
    UILabel m_detailTextLabel;
    UIImageView m_imageView;
    UITableViewCellSelectionStyle m_selectionStyle = UITableViewCellSelectionStyle::Default;
    bool m_selected = false;
    bool m_highlighted = false;
    bool m_animatesSelection = false;
};
