// SPDX-License-Identifier: Apache-2.0
#define KERNEL plainKernel
#ifdef __SSE2__
#define KERNEL_NAME "SSE2"
#else
#define KERNEL_NAME "plain"
#endif
#include "kernelloops.h"
