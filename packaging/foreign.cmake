# Builds with Debian's cross compiler for TARNWICK_ARCHITECTURE, an architecture that dpkg knows, against its libraries.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARNWICK_ARCHITECTURE)
foreach(name GNU_TYPE GNU_CPU MULTIARCH)
    execute_process(COMMAND dpkg-architecture --target-arch ${TARNWICK_ARCHITECTURE} --query DEB_TARGET_${name}
        OUTPUT_VARIABLE ${name} OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endforeach()

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${GNU_CPU})
set(CMAKE_C_COMPILER ${GNU_TYPE}-gcc)
set(CMAKE_CXX_COMPILER ${GNU_TYPE}-g++)
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/${MULTIARCH}/pkgconfig:/usr/share/pkgconfig)
# What is built to write documents, and the tests.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${GNU_CPU}-static)
