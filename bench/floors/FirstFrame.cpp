// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT

// Loaded into any Qt Quick program (LD_PRELOAD), writes the time of its first frame to its standard
// output, in nanoseconds of CLOCK_MONOTONIC, and does nothing else. With WZT_PROBE_ENDS in the
// environment it ends the program there, so that what the program did until then can be counted.

#include <QCoreApplication>
#include <QEvent>
#include <QQuickWindow>

#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <unistd.h>

namespace {

void tell()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::printf("%lld\n", now.tv_sec * 1'000'000'000LL + now.tv_nsec);
    std::fflush(stdout);
    if (qEnvironmentVariableIsSet("WZT_PROBE_ENDS")) {
        _exit(EXIT_SUCCESS);
    }
}

class FirstFrame : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        auto *window = qobject_cast<QQuickWindow *>(object);
        if (window && event->type() == QEvent::Expose && !m_isAwaited) {
            m_isAwaited = true;
            const auto once =
                static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::SingleShotConnection);
            connect(window, &QQuickWindow::frameSwapped, this, tell, once);
        }
        return false;
    }

private:
    bool m_isAwaited = false;
};

void install()
{
    QCoreApplication *application = QCoreApplication::instance();
    application->installEventFilter(new FirstFrame(application));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(install)
