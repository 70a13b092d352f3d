// SPDX-License-Identifier: Apache-2.0
#include "execution/kernel_loops.h"

namespace kelx::execution {

#ifdef KELX_AVX2_KERNELS
const Kernels& avx2Kernels();
#endif

const Kernels& baselineKernels() {
    static constexpr Kernels set = allKernels();
    return set;
}

const Kernels& kernels() {
#ifdef KELX_AVX2_KERNELS
    static const bool hasAvx2 = __builtin_cpu_supports("avx2") != 0 &&
                                __builtin_cpu_supports("bmi2") != 0 &&
                                __builtin_cpu_supports("popcnt") != 0;
    if (hasAvx2)
        return avx2Kernels();
#endif
    return baselineKernels();
}

} // namespace kelx::execution
