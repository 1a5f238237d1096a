# A room is one folder under src/ and one CMake target. Its headers can be included only as
# "<room>/<Header>.h", and only by targets that name the room after USES: the include path of a
# room holds nothing but a link to its own folder, so a wrong include does not compile.
#
#   kinalyx_room(video USES platform/host platform/paint)      logic: no Qt, no FFmpeg
#   kinalyx_room(platform/media LIBS PkgConfig::FFMPEG yuv)    may use the libraries named, privately
#   kinalyx_forms(video USES ...)                              src/video/forms: windows and pages, Qt

function(kinalyx_room_name out room)
  string(REPLACE "/" "_" name "${room}")
  set(${out} "kx_${name}" PARENT_SCOPE)
endfunction()

function(kinalyx_expose target room)
  get_filename_component(parent "${room}" DIRECTORY)
  set(root "${CMAKE_BINARY_DIR}/rooms/${target}")
  file(MAKE_DIRECTORY "${root}/${parent}")
  file(CREATE_LINK "${CMAKE_SOURCE_DIR}/src/${room}" "${root}/${room}" SYMBOLIC)
  target_include_directories(${target} PUBLIC "${root}")
endfunction()

function(kinalyx_link_rooms target)
  foreach(used ${ARGN})
    kinalyx_room_name(name "${used}")
    target_link_libraries(${target} PUBLIC ${name})
  endforeach()
endfunction()

# Ninja runs moc again when a file that it read has changed, but not when a header has joined the
# target: the stamp of its last run is removed then.
function(kinalyx_renew_moc target)
  set(list_file "${CMAKE_CURRENT_BINARY_DIR}/${target}_sources.txt")
  set(before "")
  if(EXISTS "${list_file}")
    file(READ "${list_file}" before)
  endif()
  if(NOT before STREQUAL "${ARGN}")
    file(WRITE "${list_file}" "${ARGN}")
    file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp")
  endif()
endfunction()

function(kinalyx_room room)
  cmake_parse_arguments(ROOM "" "" "USES;LIBS" ${ARGN})
  kinalyx_room_name(target "${room}")
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${room}/*.cpp" "${CMAKE_SOURCE_DIR}/src/${room}/*.h")
  list(APPEND sources "${CMAKE_SOURCE_DIR}/src/${room}/README.md")
  add_library(${target} STATIC ${sources})
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  kinalyx_expose(${target} "${room}")
  kinalyx_link_rooms(${target} ${ROOM_USES})
  target_link_libraries(${target} PUBLIC fmt::fmt PRIVATE ${ROOM_LIBS})
  if(NOT ROOM_LIBS)
    # Debian keeps the FFmpeg headers on every compiler's default path: logic must not reach them.
    target_include_directories(${target} BEFORE PRIVATE "${CMAKE_SOURCE_DIR}/cmake/forbidden")
  endif()
endfunction()

function(kinalyx_forms room)
  cmake_parse_arguments(ROOM "" "" "USES" ${ARGN})
  if(room MATCHES "^platform/")
    set(folder "${room}")
  else()
    set(folder "${room}/forms")
  endif()
  kinalyx_room_name(target "${folder}")
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp" "${CMAKE_SOURCE_DIR}/src/${folder}/*.h")
  list(APPEND sources "${CMAKE_SOURCE_DIR}/src/${folder}/README.md")
  add_library(${target} STATIC ${sources})
  set_target_properties(${target} PROPERTIES AUTOMOC ON LINKER_LANGUAGE CXX)
  kinalyx_renew_moc(${target} ${sources})
  kinalyx_expose(${target} "${folder}")
  kinalyx_link_rooms(${target} ${ROOM_USES})
  target_link_libraries(${target} PUBLIC Qt6::Widgets Qt6::Svg)
  target_precompile_headers(${target} PRIVATE <QtWidgets>)
  target_include_directories(${target} BEFORE PRIVATE "${CMAKE_SOURCE_DIR}/cmake/forbidden")
endfunction()
