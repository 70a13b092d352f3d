// SPDX-License-Identifier: Apache-2.0
#include "execution/kernel_loops.h"

namespace kelx::execution {

const Kernels& avx2Kernels();

const Kernels& avx2Kernels() {
    static constexpr Kernels set = allKernels();
    return set;
}

} // namespace kelx::execution
