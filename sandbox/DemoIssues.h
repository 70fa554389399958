// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/storage/Issue.h"

#include <QList>

namespace sandbox {

/// Issues to look at, always the same: none for one package, a dozen for one, 2,000 for one, a few
/// for the others. From nothing but a title to many paragraphs, with emoji, text from right to left
/// and words longer than any line.
QList<Issue> demoIssues();

} // namespace sandbox
