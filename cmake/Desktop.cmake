# The front with a display. Only devices/ knows the audio libraries, only widgets/, desktop/ and stage/ know Qt.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Svg DBus Network PrintSupport)
find_package(PkgConfig REQUIRED)
pkg_check_modules(PULSE REQUIRED IMPORTED_TARGET "libpulse>=16")
pkg_check_modules(SNDFILE REQUIRED IMPORTED_TARGET "sndfile>=1.2")
pkg_check_modules(SAMPLERATE REQUIRED IMPORTED_TARGET "samplerate>=0.2.2")
pkg_check_modules(MPV REQUIRED "mpv>=2.0")

ventoria_floor(devices UNWATCHED
  LINKS ventoria_context PkgConfig::PULSE PkgConfig::SNDFILE PkgConfig::SAMPLERATE ${CMAKE_DL_LIBS})
# Not linked: the program loads it when it is first needed.
target_include_directories(ventoria_devices SYSTEM PUBLIC ${MPV_INCLUDEDIR})
# The adapters of one library speak of the same things by the same names.
set_target_properties(ventoria_devices PROPERTIES UNITY_BUILD OFF)

# The console records with the same devices; where they are missing it says so.
target_link_libraries(ventoria-console PRIVATE ventoria_devices)
target_compile_definitions(ventoria-console PRIVATE VENTORIA_DEVICES)

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

# Objects rather than archives: a resource file registers itself only if its object is really linked.
ventoria_floor(widgets TYPE OBJECT UNWATCHED LINKS ventoria_context Qt6::Widgets Qt6::Svg)
ventoria_floor(desktop TYPE OBJECT UNWATCHED
  LINKS ventoria_rehearsal ventoria_disk ventoria_devices ventoria_widgets Qt6::DBus Qt6::Network Qt6::PrintSupport)
foreach(floor widgets desktop)
  ventoria_sources(headers ${PROJECT_SOURCE_DIR}/src/${floor} *.h)
  target_sources(ventoria_${floor} PRIVATE ${headers})
  set_target_properties(ventoria_${floor} PROPERTIES AUTOGEN_BUILD_DIR ${PROJECT_BINARY_DIR}/moc-${floor})
endforeach()
target_sources(ventoria_widgets PRIVATE ${PROJECT_SOURCE_DIR}/src/widgets/widgets.qrc)

ventoria_sources(pages ${PROJECT_SOURCE_DIR}/src/desktop/ui *.ui)
# One by one: the build loses sight of headers that AUTOUIC writes, and takes up a changed page a build late.
qt_wrap_ui(page_headers ${pages})
target_sources(ventoria_desktop PRIVATE ${page_headers})
target_include_directories(ventoria_desktop PRIVATE ${PROJECT_BINARY_DIR})
add_custom_target(ventoria-generated DEPENDS ${page_headers}) # what a reader of the sources must find made

ventoria_program(ventoria desktop LINKS ventoria_desktop ventoria_widgets)

ventoria_floor(stage UNWATCHED LINKS ventoria_desktop ventoria_widgets ventoria_console)
ventoria_program(ventoria-stage stage LINKS ventoria_stage ventoria_desktop ventoria_widgets)

set(CMAKE_AUTOMOC OFF)
set(CMAKE_AUTORCC OFF)
