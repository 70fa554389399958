// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/uikit/bars/UIBarButtonItem.h"

QString UIBarButtonItem::titleOf(UIBarButtonSystemItem item)
{
    switch (item) {
    case UIBarButtonSystemItem::Cancel:
        return tr("Cancel");
    case UIBarButtonSystemItem::Add:
        return tr("Add");
    }
    Q_UNREACHABLE();
}
