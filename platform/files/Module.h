// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Module {

[[nodiscard]] void *symbol(const char *file, const char *name);

/// A function of a module: a shared library of the application's own that is loaded when it is
/// first needed, and stays loaded. `file`: its name, searched where modules are installed, or a
/// path. Null if the module or one of the libraries that it stands on is missing; the reason is
/// logged. Any thread.
template <typename Function>
[[nodiscard]] Function *function(const char *file, const char *name)
{
    return reinterpret_cast<Function *>(symbol(file, name));
}

} // namespace Module
