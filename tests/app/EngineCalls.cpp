// SPDX-License-Identifier: GPL-3.0-or-later
#include "EngineCalls.h"

#include "kel.h"

#include <dlfcn.h>

namespace {

int calls = 0;

} // namespace

void kel::destroy() {
    ++calls;
    using Destroy = void (*)();
    if (auto* next = reinterpret_cast<Destroy>(dlsym(RTLD_NEXT, "_ZN3kel7destroyEv")))
        next();
}

int destroyCalls() {
    return calls;
}
