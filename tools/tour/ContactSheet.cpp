// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "tools/tour/ContactSheet.h"

#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 10;
constexpr QSize small{160, 346};
constexpr int gap = 12;
constexpr int caption = 20;

} // namespace

bool makeContactSheet(const QDir &folder)
{
    const QStringList names = folder.entryList({u"*.png"_s}, QDir::Files, QDir::Name);
    const int rows = (static_cast<int>(names.size()) + columns - 1) / columns;
    QImage sheet(columns * (small.width() + gap) + gap,
                 rows * (small.height() + caption + gap) + gap, QImage::Format_RGB32);
    if (sheet.isNull()) {
        return names.isEmpty();
    }
    sheet.fill(QColor(128, 128, 132));
    QPainter painter(&sheet);
    QFont font = painter.font();
    font.setPixelSize(11);
    painter.setFont(font);
    painter.setPen(Qt::white);
    for (int i = 0; i < names.size(); ++i) {
        const QPoint at(gap + i % columns * (small.width() + gap),
                        gap + i / columns * (small.height() + caption + gap));
        const QImage picture(folder.filePath(names[i]));
        painter.drawText(QRect(at, QSize(small.width(), caption)), Qt::AlignVCenter,
                         names[i].chopped(4));
        painter.drawImage(at + QPoint(0, caption),
                          picture.scaled(small, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }
    painter.end();
    return sheet.save(folder.absolutePath() + u".png"_s);
}
