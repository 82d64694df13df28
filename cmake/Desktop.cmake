# The only floors that know Qt and the audio libraries.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Svg DBus Network PrintSupport)
find_package(PkgConfig REQUIRED)
pkg_check_modules(PULSE REQUIRED IMPORTED_TARGET libpulse)
pkg_check_modules(SNDFILE REQUIRED IMPORTED_TARGET sndfile)
pkg_check_modules(SAMPLERATE REQUIRED IMPORTED_TARGET samplerate)
pkg_check_modules(MPV REQUIRED IMPORTED_TARGET mpv)

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

# Objects rather than an archive: a resource file registers itself only if its object is really linked.
ventoria_floor(desktop TYPE OBJECT
  LINKS ventoria_app Qt6::Widgets Qt6::Svg Qt6::DBus Qt6::Network Qt6::PrintSupport PkgConfig::PULSE PkgConfig::SNDFILE
    PkgConfig::SAMPLERATE PkgConfig::MPV)
get_target_property(desktop_kind ventoria_desktop TYPE)
if(NOT desktop_kind STREQUAL "INTERFACE_LIBRARY")
  file(GLOB extras CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/desktop/*.h ${PROJECT_SOURCE_DIR}/src/desktop/*.qrc)
  file(GLOB pages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/desktop/ui/*.ui)
  # One by one: the build loses sight of headers that AUTOUIC writes, and takes up a changed page a build late.
  qt_wrap_ui(page_headers ${pages})
  target_sources(ventoria_desktop PRIVATE ${extras} ${page_headers})
  target_include_directories(ventoria_desktop PRIVATE ${PROJECT_BINARY_DIR})
  set_target_properties(ventoria_desktop PROPERTIES AUTOGEN_BUILD_DIR ${PROJECT_BINARY_DIR}/moc)
endif()
ventoria_program(ventoria desktop LINKS ventoria_desktop)

ventoria_floor(stage LINKS ventoria_desktop ventoria_console)
ventoria_program(ventoria-stage stage LINKS ventoria_stage ventoria_desktop)

set(CMAKE_AUTOMOC OFF)
set(CMAKE_AUTORCC OFF)
