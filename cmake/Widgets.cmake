# The Qt 6 Widgets half: vxutil_widgets (dialogs, list controls, decoration, the Qt services)
# from the sources in the qt/ folder of each module, linked like the core: once as the shared
# library client tools load, once as a static archive for the tests.

file(GLOB_RECURSE vxutil_widget_sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/src/*/qt/*.cpp ${PROJECT_SOURCE_DIR}/src/*/qt/*.h
  ${PROJECT_SOURCE_DIR}/src/*/qt/*.ui ${PROJECT_SOURCE_DIR}/src/*/qt/*.qrc
  ${PROJECT_SOURCE_DIR}/include/vxutil/*/qt/*.h)

add_library(vxutil_widgets_objects OBJECT ${vxutil_widget_sources})
set_target_properties(vxutil_widgets_objects PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
target_include_directories(vxutil_widgets_objects
  PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
  PRIVATE ${PROJECT_SOURCE_DIR}/src)
# Every literal shown to a user must come from the string table: no implicit QString from ASCII.
target_compile_definitions(vxutil_widgets_objects PRIVATE VXUTIL_WIDGETS_BUILDING QT_NO_KEYWORDS
                                                          QT_NO_CAST_FROM_ASCII)
target_link_libraries(vxutil_widgets_objects PUBLIC Qt6::Widgets)
vxutil_apply_compiler_settings(vxutil_widgets_objects)

add_library(vxutil_widgets SHARED)
add_library(vxutil::widgets ALIAS vxutil_widgets)
target_link_libraries(vxutil_widgets PRIVATE vxutil_widgets_objects PUBLIC vxutil Qt6::Widgets)
set_target_properties(vxutil_widgets PROPERTIES VERSION ${PROJECT_VERSION}
                                                SOVERSION ${PROJECT_VERSION_MAJOR})
vxutil_apply_link_settings(vxutil_widgets)

add_library(vxutil_widgets_static STATIC)
target_link_libraries(vxutil_widgets_static PUBLIC vxutil_widgets_objects vxutil_static)
target_include_directories(vxutil_widgets_static PUBLIC ${PROJECT_SOURCE_DIR}/src)
