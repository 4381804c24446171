# The flags of the project, once. Every target of the tree links `options`.
add_library(options INTERFACE)
target_compile_features(options INTERFACE cxx_std_17)
target_compile_options(options INTERFACE -Wall -Wextra -Wformat=2 -Wshadow)
# Paths in messages start at the project root, wherever that was built.
target_compile_options(options INTERFACE -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
# 64-bit sizes and times in every structure that crosses a translation unit, on 32-bit x86 too.
target_compile_definitions(options INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64 QT_DEPRECATED_WARNINGS)
# Project headers are named from the project root, so every #include line shows its room.
target_include_directories(options INTERFACE ${PROJECT_SOURCE_DIR})

if(QUILLMERE_WERROR)
  target_compile_options(options INTERFACE -Werror)
endif()

if(QUILLMERE_SANITIZE)
  target_compile_options(options INTERFACE -fsanitize=${QUILLMERE_SANITIZE} -fno-omit-frame-pointer)
  target_link_options(options INTERFACE -fsanitize=${QUILLMERE_SANITIZE})
endif()
