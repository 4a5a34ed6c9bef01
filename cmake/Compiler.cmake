# One target carries what every source file of the project is compiled with.
add_library(sorvanta_compiler INTERFACE)

target_compile_options(sorvanta_compiler INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
  -Wold-style-cast -Wcast-qual -Wimplicit-fallthrough -Wformat -Wformat-security)
if(SORVANTA_WERROR)
  target_compile_options(sorvanta_compiler INTERFACE -Werror)
endif()

# -D_GLIBCXX_ASSERTIONS and the stack protector cost nothing that can be measured here. Nor does what
# the linker does: programs at addresses of chance, whose tables nobody can write to once they run.
# The library's own checks need an optimising compiler.
target_compile_options(sorvanta_compiler INTERFACE -fstack-protector-strong)
target_compile_definitions(sorvanta_compiler INTERFACE _GLIBCXX_ASSERTIONS
  $<$<CONFIG:RelWithDebInfo,Release>:_FORTIFY_SOURCE=2>)
target_link_options(sorvanta_compiler INTERFACE -Wl,-z,relro -Wl,-z,now)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported()

if(SORVANTA_SANITIZE)
  target_compile_options(sorvanta_compiler INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(sorvanta_compiler INTERFACE -fsanitize=address,undefined)
endif()

if(SORVANTA_FUZZ)
  target_compile_options(sorvanta_compiler INTERFACE -fsanitize=fuzzer-no-link)
endif()

target_include_directories(sorvanta_compiler INTERFACE ${CMAKE_SOURCE_DIR}/src)

# What only the sources that see Qt get: no silent conversions, no keywords that clash with GLib's.
add_library(sorvanta_qt INTERFACE)
target_link_libraries(sorvanta_qt INTERFACE sorvanta_compiler Qt6::Core tl::expected)
target_compile_definitions(sorvanta_qt INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
