// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/uikit/text/UITextInputTraits.h"

/// `type` from system version `version` on, and no content type before it.
[[nodiscard]] UITextContentType contentTypeSince(double version, UITextContentType type);
