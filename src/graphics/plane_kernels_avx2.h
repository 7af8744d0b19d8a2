#pragma once

namespace graphics {

struct PlaneKernels;

// For x86 processors with AVX2; null where the processor or the compiler does not have it.
const PlaneKernels *avx2Kernels();

} // namespace graphics
