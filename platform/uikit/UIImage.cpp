// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/UIImage.h"

#include <QFile>

UIImage UIImage::imageNamed(const QString &name)
{
    return QFile::exists(pathOfImageNamed(name)) ? UIImage(name) : UIImage();
}

QString UIImage::pathOfImageNamed(const QString &name)
{
    return name.isEmpty() ? QString() : QStringLiteral(":/assets/%1.svg").arg(name);
}
