// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "harness/TestApp.h"
#include "tools/tour/Pictures.h"

#include <QDir>
#include <QObject>
#include <QSize>

#include <memory>

class TestWindow;

/// A person at the application's window: finds things by the names that a screen reader says,
/// touches them and types, and leaves a picture of every screen and alert in a folder.
class Tour : public QObject {
    Q_OBJECT

public:
    explicit Tour(const QDir &folder);
    ~Tour() override;

private Q_SLOTS:
    void picture_data();
    void picture();
    /// A button made with a size, and so with a shine, which no screen has.
    void shinyButton();
    /// Of each look's pictures one sheet.
    void contactSheets();

private:
    void launch();
    void take(const Step &step);
    void tap(const QString &name);
    void await(const QString &name);

    QDir m_folder;
    QSize m_size;
    int m_keyboard = 0; // height of the on-screen one
    DesktopAppearance m_appearance;
    std::unique_ptr<TestApp> m_app;
    std::unique_ptr<TestWindow> m_window;
};
