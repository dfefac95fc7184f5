# Language level, warnings and hardening of every target.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

add_compile_options(-Wall -Wextra -Wpedantic -fstack-protector-strong)
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)

if(DRAVIKON_SANITIZE)
    # pointer-overflow: RapidJSON adds an offset to a null pointer when it first uses its stack.
    # enum: the end of input is the key -1, which is passed as a Qt::Key.
    add_compile_options(-fsanitize=${DRAVIKON_SANITIZE} -fno-sanitize=pointer-overflow,enum
        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${DRAVIKON_SANITIZE})
endif()

# A release is small and hardened: no unused sections, no symbols, read-only relocations.
add_compile_options("$<$<CONFIG:Release>:-O2;-ffunction-sections;-fdata-sections>")
add_compile_definitions("$<$<CONFIG:Release>:_FORTIFY_SOURCE=2>")
add_link_options("$<$<CONFIG:Release>:-s;-Wl,--gc-sections;-Wl,-z,relro;-Wl,-z,now>")
set(CMAKE_CXX_FLAGS_RELEASE "-DNDEBUG")
