// SPDX-License-Identifier: Apache-2.0
#include "kernel.h"

namespace headunit::engine {

bool hasAvx2() {
#ifdef __x86_64__
    return __builtin_cpu_supports("avx2");
#else
    return false;
#endif
}

const Kernel &bestKernel() {
    return hasAvx2() ? avx2Kernel : plainKernel;
}

}  // namespace headunit::engine
