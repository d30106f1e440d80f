// The processors that vector code is compiled for. Include before any header of Highway.
//
// On x86-64: any (scalar), SSSE3, AVX2, and AVX-512 with VBMI, whose one-instruction lookup in 64 bytes
// is what makes 512 bits worth while; the steps between add compile time and little else. Kernels
// keep vectors in arrays, so the sizeless vectors of SVE and RVV are left out in favour of NEON.
#pragma once

#define HWY_WANT_AVX3_DL
#define HWY_DISABLED_TARGETS (HWY_SSE4 | HWY_AVX3 | HWY_SVE | HWY_SVE2 | HWY_SVE_256 | HWY_SVE2_128 | HWY_RVV)
