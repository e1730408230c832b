# SPDX-License-Identifier: Apache-2.0
# Destinations of `cmake --install`, by component:
#   plugin  the application that ships in the car: libaudiosetting.so without RPATH, and its pictures for dense displays
#   dev     for who builds a unit or links the panel: the contract, the panel's header, a CMake package
#   desk    the reference head unit; it finds all that it needs from where it stands, so the tree can be moved
#   doc     documents
# The unit is one folder, lib/headunit, with applications in plugins/, as in the build folder's lib/.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(unit_dir ${CMAKE_INSTALL_LIBDIR}/headunit)
set(AUDIOSETTING_PLUGIN_DIR ${unit_dir}/plugins CACHE STRING "Where the plug-in is installed, below the prefix")

install(TARGETS audiosetting LIBRARY DESTINATION ${AUDIOSETTING_PLUGIN_DIR} COMPONENT plugin)
install(FILES ${CMAKE_BINARY_DIR}/lib/plugins/audiosetting@2x.rcc
    DESTINATION ${AUDIOSETTING_PLUGIN_DIR} COMPONENT plugin)

set(dev_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/audiosettings)
set(dev_kit_dir ${CMAKE_INSTALL_DATADIR}/audiosettings)
set(dev_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/AudioSettings)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/platform/ DESTINATION ${dev_include_dir}/platform COMPONENT dev
    FILES_MATCHING PATTERN "*.h")
install(FILES ${CMAKE_SOURCE_DIR}/audiosetting/eq/eqwidget.h DESTINATION ${dev_include_dir} COMPONENT dev)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/AudioSettingsConfig.cmake.in
    ${CMAKE_BINARY_DIR}/AudioSettingsConfig.cmake
    INSTALL_DESTINATION ${dev_cmake_dir} PATH_VARS dev_include_dir dev_kit_dir AUDIOSETTING_PLUGIN_DIR
    NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/AudioSettingsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/AudioSettingsConfig.cmake ${CMAKE_BINARY_DIR}/AudioSettingsConfigVersion.cmake
    DESTINATION ${dev_cmake_dir} COMPONENT dev)

# The kit and a sample unit, as sources that build by themselves beside the contract.
install(DIRECTORY ${CMAKE_SOURCE_DIR}/conformance ${CMAKE_SOURCE_DIR}/platform DESTINATION ${dev_kit_dir} COMPONENT dev)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/examples/carunit DESTINATION ${dev_kit_dir}/examples COMPONENT dev)
install(FILES ${CMAKE_SOURCE_DIR}/docs/porting.md DESTINATION ${dev_kit_dir} COMPONENT dev)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/ForeignHeadUnit.cmake ${CMAKE_CURRENT_LIST_DIR}/contract.cpp
    DESTINATION ${dev_kit_dir}/cmake COMPONENT dev)

file(GLOB documents CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/*)
install(FILES ${documents} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/audiosettings/docs COMPONENT doc)
install(FILES ${CMAKE_SOURCE_DIR}/README.md ${CMAKE_SOURCE_DIR}/CHANGELOG.md ${CMAKE_SOURCE_DIR}/SECURITY.md
    ${CMAKE_SOURCE_DIR}/CONTRIBUTING.md ${CMAKE_SOURCE_DIR}/LICENSE
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/audiosettings COMPONENT doc)

if(AUDIOSETTING_SDK)
    return()
endif()

# The program stands among its libraries; what lies in bin/ is a link to it.
set(unit_libraries topui common qvaudio qvaudioservice mcuservice)
set(unit_modules headunitscript headunitsound headunitbandadjust headunitvirtualtime)
if(TARGET headunitdesk)
    list(APPEND unit_modules headunitdesk)
endif()
set_target_properties(headunit ${unit_libraries} ${unit_modules} PROPERTIES INSTALL_RPATH "$ORIGIN")
set_property(TARGET headunitbandadjust PROPERTY INSTALL_RPATH "$ORIGIN;$ORIGIN/plugins")
install(TARGETS headunit ${unit_libraries} ${unit_modules}
    RUNTIME DESTINATION ${unit_dir} COMPONENT desk
    LIBRARY DESTINATION ${unit_dir} COMPONENT desk)
install(FILES ${CMAKE_BINARY_DIR}/bin/headunit@2x.rcc DESTINATION ${unit_dir} COMPONENT desk)
install(DIRECTORY ${CMAKE_BINARY_DIR}/lib/fontroot DESTINATION ${unit_dir} COMPONENT desk PATTERN "cache/*" EXCLUDE)

# A link that stays right when the tree is moved.
file(RELATIVE_PATH program_link ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/headunit/headunit)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/install)
file(CREATE_LINK ${program_link} ${CMAKE_BINARY_DIR}/install/headunit SYMBOLIC)
install(FILES ${CMAKE_BINARY_DIR}/install/headunit DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT desk)

# Fonts are looked up faster from a cache, which only who installs can write.
install(CODE "
    find_program(FC_CACHE fc-cache)
    if(FC_CACHE AND NOT DEFINED ENV{DESTDIR})
        set(ENV{FONTCONFIG_SYSROOT} \"\${CMAKE_INSTALL_PREFIX}/${unit_dir}/fontroot\")
        set(ENV{FONTCONFIG_FILE} /fonts.conf)
        execute_process(COMMAND \${FC_CACHE} OUTPUT_QUIET ERROR_QUIET)
    endif()" COMPONENT desk)

# How a desk knows the program.
install(FILES ${CMAKE_SOURCE_DIR}/desktop/com.norvale.headunit.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT desk)
install(FILES ${CMAKE_SOURCE_DIR}/desktop/com.norvale.headunit.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT desk)
install(FILES ${CMAKE_SOURCE_DIR}/desktop/com.norvale.headunit.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT desk)
install(FILES ${CMAKE_SOURCE_DIR}/desktop/headunit.service DESTINATION lib/systemd/user COMPONENT desk)
install(FILES ${CMAKE_SOURCE_DIR}/desktop/headunit.bash-completion
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME headunit COMPONENT desk)

find_program(HELP2MAN help2man)
if(HELP2MAN)
    set(man_page ${CMAKE_BINARY_DIR}/install/headunit.1)
    add_custom_command(OUTPUT ${man_page}
        COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
            ${HELP2MAN} --no-info --name "car's head unit on the desk" --output ${man_page} $<TARGET_FILE:headunit>
        DEPENDS headunit VERBATIM)
    add_custom_target(man_page ALL DEPENDS ${man_page})
    install(FILES ${man_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT desk)
endif()
