# Linked by every target of ours: what both compilers must accept without a word.
add_library(parabolt_warnings INTERFACE)
target_compile_options(parabolt_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wfloat-conversion
    -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-align -Woverloaded-virtual
    -Wformat=2 -Wundef
    $<$<CXX_COMPILER_ID:Clang>:-Wimplicit-float-conversion>
    # gcc 12 sees overlaps in joined strings where there are none (its bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op -Wno-restrict>
    $<$<BOOL:${PARABOLT_WERROR}>:-Werror>)
