# What every target of the project is compiled with. Link `quillorent::options`; targets that use Qt link
# `quillorent::qt-strict` as well.

option(QUILLORENT_WARNINGS_ARE_ERRORS "Treat compiler warnings as errors" OFF)
set(QUILLORENT_SANITIZE "" CACHE STRING "Sanitizers for -fsanitize=, for example address,undefined")

# The language and its warnings alone: for what is too small, or too early, for a sanitizer.
add_library(quillorent-language INTERFACE)
add_library(quillorent::language ALIAS quillorent-language)
target_compile_features(quillorent-language INTERFACE cxx_std_20)
target_compile_options(quillorent-language INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast -Wcast-qual -Wformat=2 -Wimplicit-fallthrough -Wundef
    $<$<BOOL:${QUILLORENT_WARNINGS_ARE_ERRORS}>:-Werror>)

add_library(quillorent-options INTERFACE)
add_library(quillorent::options ALIAS quillorent-options)
target_link_libraries(quillorent-options INTERFACE quillorent-language)
# Files larger than 2 GiB are the rule here, on 32-bit systems too.
target_compile_definitions(quillorent-options INTERFACE _FILE_OFFSET_BITS=64)

if(QUILLORENT_SANITIZE)
    target_compile_options(quillorent-options INTERFACE
        -fsanitize=${QUILLORENT_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
        -g1) # lines are all that a report needs, and it links in half the time
    target_link_options(quillorent-options INTERFACE -fsanitize=${QUILLORENT_SANITIZE})
else()
    # What makes a fault in memory end the program rather than open it; a packager's own flags come on top.
    include(CheckCXXCompilerFlag)
    foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
        string(MAKE_C_IDENTIFIER "QUILLORENT_HAS${flag}" has)
        check_cxx_compiler_flag(${flag} ${has})
        if(${has})
            target_compile_options(quillorent-options INTERFACE $<$<NOT:$<CONFIG:Debug>>:${flag}>)
        endif()
    endforeach()
    target_compile_options(quillorent-options INTERFACE
        $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=3>)
    target_link_options(quillorent-options INTERFACE -Wl,-z,relro,-z,now)
endif()
# Cheap checks of indexes and iterators, in every build.
target_compile_definitions(quillorent-options INTERFACE _GLIBCXX_ASSERTIONS)

add_library(quillorent-qt-strict INTERFACE)
add_library(quillorent::qt-strict ALIAS quillorent-qt-strict)
target_compile_definitions(quillorent-qt-strict INTERFACE
    QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_NO_CAST_FROM_BYTEARRAY QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# quillorent_precompile(TARGET HEADERS): compiles what most of a large target's files read once. Only where two builds
# with sanitizers wait for it: it hides an include that is missing.
function(quillorent_precompile target headers)
    if(QUILLORENT_SANITIZE)
        target_precompile_headers(${target} PRIVATE ${${headers}})
    endif()
endfunction()
set(QUILLORENT_STANDARD_HEADERS
    <algorithm> <array> <atomic> <chrono> <functional> <memory> <mutex> <optional> <string> <thread> <vector>)
set(QUILLORENT_CORE_HEADERS ${QUILLORENT_STANDARD_HEADERS}
    <QCoreApplication> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QList> <QLocale> <QObject> <QRegularExpression>
    <QString> <QStringList> <QTimer> <QUrl>)
set(QUILLORENT_WINDOW_HEADERS ${QUILLORENT_CORE_HEADERS}
    <QApplication> <QDialog> <QFrame> <QHeaderView> <QLabel> <QLineEdit> <QMainWindow> <QMessageBox> <QPainter>
    <QPushButton> <QStyle> <QTabWidget> <QToolButton> <QVBoxLayout> <QWidget>)
