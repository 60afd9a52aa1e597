# What every target of the project is compiled with; a library of ours links kordavan_options privately.
add_library(kordavan_options INTERFACE)

target_compile_options(kordavan_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # g++ 12 sees overlapping copies in std::string where there are none (its bug 105651).
  target_compile_options(kordavan_options INTERFACE -Wno-restrict)
  # It also sees unset strings in a temporary Session{} at -O3; the linter's analyzer looks for real ones.
  target_compile_options(kordavan_options INTERFACE -Wno-maybe-uninitialized)
else()
  # Part of clang's -Wconversion, not of g++'s.
  target_compile_options(kordavan_options INTERFACE -Wno-sign-conversion)
  # RapidJSON compares its iterators in the manner of C++17.
  target_compile_options(kordavan_options INTERFACE -Wno-ambiguous-reversed-operator)
endif()
if(KORDAVAN_WARNINGS_AS_ERRORS)
  target_compile_options(kordavan_options INTERFACE -Werror)
endif()

# Debug, release and every processor agree on a member that passes by a hair.
target_compile_options(kordavan_options INTERFACE -ffp-contract=off)

# The table of addresses of a released program cannot be written.
target_link_options(kordavan_options INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)

if(KORDAVAN_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_compile_options(${sanitizers})
  add_link_options(${sanitizers})
endif()

if(KORDAVAN_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link
                      -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/ignored-checks.txt)
endif()
