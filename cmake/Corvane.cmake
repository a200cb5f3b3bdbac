# What every target of the project shares: warnings, sanitizers, precompiled headers, and how a room becomes a library.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      ${CCACHE_PROGRAM})
endif()

add_library(corvane_options INTERFACE)
target_compile_options(corvane_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                                 -Woverloaded-virtual -fno-omit-frame-pointer)
if(CCACHE_PROGRAM)
  target_compile_options(corvane_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()
target_compile_definitions(corvane_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
                                                     QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(CORVANE_WARNINGS_ARE_ERRORS)
  target_compile_options(corvane_options INTERFACE -Werror)
endif()
if(CORVANE_SANITIZE)
  target_compile_options(corvane_options INTERFACE -fsanitize=${CORVANE_SANITIZE} -fno-sanitize-recover=all)
  target_link_options(corvane_options INTERFACE -fsanitize=${CORVANE_SANITIZE})
endif()
target_link_libraries(corvane_options INTERFACE Threads::Threads)

# Two shared precompiled headers, so that Qt's headers are read twice in a build and not once for each file.
function(corvane_precompiled name qt_library)
  file(WRITE ${CMAKE_BINARY_DIR}/${name}.cpp.in "// Carries the precompiled headers of ${name}.\n")
  configure_file(${CMAKE_BINARY_DIR}/${name}.cpp.in ${CMAKE_BINARY_DIR}/${name}.cpp COPYONLY)
  add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PRIVATE corvane_options ${qt_library})
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()

corvane_precompiled(corvane_pch_core Qt6::Core
  <QByteArray> <QDateTime> <QHash> <QObject> <QString> <QStringList> <atomic> <functional> <memory> <mutex> <string>
  <thread> <vector>)
corvane_precompiled(corvane_pch_widgets Qt6::Widgets
  <QApplication> <QByteArray> <QDateTime> <QHash> <QObject> <QString> <QStringList> <QtWidgets> <atomic> <functional>
  <memory> <mutex> <string> <thread> <vector>)

# corvane_room(<name> [PLAIN | WIDGETS] [LINKS <library>...])
# One static library for each room, made of the sources in the room's own folder and linked to exactly what the room may
# include; a plain one knows no Qt. Includes are written from src/ on, so that every #include names the room it reaches into.
function(corvane_room name)
  cmake_parse_arguments(ROOM "PLAIN;WIDGETS" "" "LINKS" ${ARGN})
  file(GLOB room_sources CONFIGURE_DEPENDS *.cpp *.h *.ui)
  list(FILTER room_sources EXCLUDE REGEX "/main\\.cpp$") # belongs to the program, not to the room
  if(NOT room_sources)
    add_library(corvane_${name} INTERFACE)
    target_link_libraries(corvane_${name} INTERFACE ${ROOM_LINKS})
    return()
  endif()
  add_library(corvane_${name} STATIC ${room_sources})
  target_include_directories(corvane_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  if(ROOM_PLAIN)
    target_link_libraries(corvane_${name} PUBLIC ${ROOM_LINKS} PRIVATE corvane_options)
    return()
  endif()
  if(ROOM_WIDGETS)
    set(qt_library Qt6::Widgets)
    set(pch corvane_pch_widgets)
    set_target_properties(corvane_${name} PROPERTIES AUTOMOC ON AUTOUIC ON)
  else()
    set(qt_library Qt6::Core)
    set(pch corvane_pch_core)
  endif()
  target_link_libraries(corvane_${name} PUBLIC ${qt_library} ${ROOM_LINKS} PRIVATE corvane_options)
  target_precompile_headers(corvane_${name} REUSE_FROM ${pch})
endfunction()
