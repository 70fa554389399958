// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#include "platform/files/Module.h"

#include <QDebug>

#include <dlfcn.h>

void *Module::symbol(const char *file, const char *name)
{
    // A plain name is searched in the run path of the program, which this code is linked into. A
    // sanitizer's dlopen calls from a library of its own: RUNPATH does not hold for that, RPATH
    // does.
    void *module = dlopen(file, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    void *found = module ? dlsym(module, name) : nullptr;
    if (!found) {
        qWarning("A module cannot be loaded: %s", dlerror());
    }
    return found;
}
