# A program that runs as root should abort on a fault rather than continue.
include(CheckCXXCompilerFlag)
include(CheckIPOSupported)
include(CheckPIESupported)

check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
check_ipo_supported(LANGUAGES CXX)
set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)

# Not every architecture supports each of them.
function(tarnwick_known_flags result)
    set(known)
    foreach(flag IN LISTS ARGN)
        string(MAKE_C_IDENTIFIER "has${flag}" answer)
        check_cxx_compiler_flag(${flag} ${answer})
        if(${answer})
            list(APPEND known ${flag})
        endif()
    endforeach()
    set(${result} ${known} PARENT_SCOPE)
endfunction()

tarnwick_known_flags(stack_and_jumps -fstack-protector-strong -fstack-clash-protection -fcf-protection)
add_compile_definitions(_FORTIFY_SOURCE=3 _GLIBCXX_ASSERTIONS)
add_compile_options(${stack_and_jumps})

# Without it, link-time optimisation copies Qt's objects into the program while Qt uses its own.
tarnwick_known_flags(no_copies -mno-direct-extern-access)
add_link_options(${no_copies} LINKER:-z,relro,-z,now,--strip-all)
