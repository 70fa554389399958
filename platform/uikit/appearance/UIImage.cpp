// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/appearance/UIImage.h"

#include <QFile>

namespace {

QString templatePath(const QString &name)
{
    return QStringLiteral(":/assets/templates/%1.svg").arg(name);
}

} // namespace

UIImage UIImage::imageNamed(const QString &name)
{
    return QFile::exists(pathOfImageNamed(name)) ? UIImage(name) : UIImage();
}

bool UIImage::isTemplate() const
{
    return QFile::exists(templatePath(m_name));
}

QString UIImage::pathOfImageNamed(const QString &name)
{
    if (name.isEmpty()) {
        return {};
    }
    const QString path = templatePath(name);
    return QFile::exists(path) ? path : QStringLiteral(":/assets/%1.svg").arg(name);
}
