#pragma once

namespace parabolt {

#if defined(__x86_64__) && defined(__GNUC__)
/// Only for a processor that has the instruction.
[[gnu::target("avx")]] inline void clearUpperHalves() {
    __builtin_ia32_vzeroupper();
}
#endif

/// Gives the upper halves of the vector registers back. A window's libraries leave them in use, and
/// scalar arithmetic is then up to eight times slower on some Intel processors. Changes no value
/// that our code computes with; does nothing on other machines.
inline void releaseVectorState() {
#if defined(__x86_64__) && defined(__GNUC__)
    if (__builtin_cpu_supports("avx"))
        clearUpperHalves();
#endif
}

} // namespace parabolt
