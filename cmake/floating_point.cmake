# A flight has the same bits on every machine. Options that let a compiler compute something else than what is
# written are refused, wherever a packager or a person puts them.
set(flags "${CMAKE_CXX_FLAGS} ${CMAKE_EXE_LINKER_FLAGS}")
foreach(type IN ITEMS "${CMAKE_BUILD_TYPE}" ${CMAKE_CONFIGURATION_TYPES})
    string(TOUPPER "${type}" type)
    string(APPEND flags " ${CMAKE_CXX_FLAGS_${type}}")
endforeach()
string(CONCAT inexact "(^| )(-Ofast|-ffast-math|-ffp-model=(fast|aggressive)|-funsafe-math-optimizations"
    "|-fassociative-math|-freciprocal-math|-fapprox-func|-ffinite-math-only|-fno-signed-zeros"
    "|-fcx-limited-range|-fsingle-precision-constant|-mdaz-ftz|-mpc(32|64)|-mrecip[^ ]*)( |$)")
if(flags MATCHES "${inexact}")
    message(FATAL_ERROR "${CMAKE_MATCH_2} changes the numbers of a flight: build without it.")
endif()

# What every target of ours is compiled with, as they all link the core: our options come after those of
# CMAKE_CXX_FLAGS and win.
# - A fused multiply-add rounds once where two operations round twice.
# - gcc 12 drops roundings to 32 bits when it joins scalar statements into vectors: measured with -O3
#   -march=x86-64-v3 and optimisation across files, on the plain step of a flight.
add_library(parabolt_floating_point INTERFACE)
target_compile_options(parabolt_floating_point INTERFACE -ffp-contract=off
    $<$<CXX_COMPILER_ID:GNU>:-fno-tree-slp-vectorize>)
