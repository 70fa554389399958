// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/controls/UIControl.h"

/// The spinner that a table shows while its contents are fetched anew, which the user asks for by
/// pulling the table down. Sends ValueChanged then. Made by `make`.
class UIRefreshControl : public UIControl, public std::enable_shared_from_this<UIRefreshControl> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by a screen")
    Q_PROPERTY(bool refreshing READ isRefreshing NOTIFY changed FINAL)

public:
    UIRefreshControl();
    ~UIRefreshControl() override;

    [[nodiscard]] bool isRefreshing() const { return m_refreshing; }
    /// Shows the spinner until `endRefreshing`; sends nothing.
    void beginRefreshing() { assign(m_refreshing, true); }
    void endRefreshing() { assign(m_refreshing, false); }

    /// Acts as the user's pull: begins, and sends ValueChanged; nothing while it is refreshing.
    Q_INVOKABLE void pull();

private:
    bool m_refreshing = false;
};
