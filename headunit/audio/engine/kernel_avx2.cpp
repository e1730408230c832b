// SPDX-License-Identifier: Apache-2.0
#define KERNEL avx2Kernel
#ifdef __AVX2__
#define KERNEL_NAME "AVX2"
#else
#define KERNEL_NAME "plain"
#endif
#include "kernelloops.h"
