// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sandbox/storage/Issue.h"

#include <QList>

namespace sandbox {

/// Issues for demonstrations, the same at every call: none for one package, a dozen for one, 2,000
/// for one, a few for the others. Their texts vary from a bare title to many paragraphs, with
/// emoji, right-to-left text and words longer than a line.
QList<Issue> demoIssues();

} // namespace sandbox
