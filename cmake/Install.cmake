# Where a package puts things. The programs stand together in a folder of their own, with links to what they show, so
# that they find it there as they do in the build folder.
include(GNUInstallDirs)
set(home "lib/kinalyx")
install(TARGETS kinalyx avitrim kinalyx-demo RUNTIME DESTINATION ${home})
install(TARGETS KinalyxViewer RUNTIME DESTINATION ${home}/Bin)
install(FILES "${CMAKE_SOURCE_DIR}/tools/viewer/read-me.txt" DESTINATION ${home}/Bin RENAME "Read me.txt")
foreach(part help icons pictures)
  install(DIRECTORY "${CMAKE_SOURCE_DIR}/assets/${part}" DESTINATION ${CMAKE_INSTALL_DATADIR}/kinalyx)
endforeach()
install(DIRECTORY "${CMAKE_BINARY_DIR}/bin/words" DESTINATION ${CMAKE_INSTALL_DATADIR}/kinalyx)
# Links are made where the files go, wherever that is now.
install(CODE "
  set(root \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
  file(MAKE_DIRECTORY \"\${root}/bin\")
  foreach(part help icons pictures words)
    file(CREATE_LINK ../../${CMAKE_INSTALL_DATADIR}/kinalyx/\${part} \"\${root}/${home}/\${part}\" SYMBOLIC)
  endforeach()
  foreach(program kinalyx avitrim kinalyx-demo)
    file(CREATE_LINK ../${home}/\${program} \"\${root}/bin/\${program}\" SYMBOLIC)
  endforeach()")

set(desktop "${CMAKE_SOURCE_DIR}/packaging")
install(FILES "${desktop}/org.kinalyx.Kinalyx.desktop" DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES "${desktop}/org.kinalyx.Kinalyx.metainfo.xml" DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES "${desktop}/org.kinalyx.Kinalyx.mime.xml" DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME org.kinalyx.Kinalyx.xml)
install(FILES "${desktop}/kinalyx.1" "${desktop}/avitrim.1" "${desktop}/kinalyx-demo.1"
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES "${desktop}/org.kinalyx.Kinalyx.svg" DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
# Desktops that draw no SVG take the nearest size.
find_program(RSVG rsvg-convert)
if(RSVG)
  foreach(size 16 24 32 48 64 128 256 512)
    set(made "${CMAKE_BINARY_DIR}/icons/${size}.png")
    add_custom_command(OUTPUT "${made}" DEPENDS "${desktop}/org.kinalyx.Kinalyx.svg"
      COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_BINARY_DIR}/icons"
      COMMAND ${RSVG} -w ${size} -h ${size} -o "${made}" "${desktop}/org.kinalyx.Kinalyx.svg")
    list(APPEND icons "${made}")
    install(FILES "${made}" DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps
            RENAME org.kinalyx.Kinalyx.png OPTIONAL)
  endforeach()
  add_custom_target(kinalyx-icons DEPENDS ${icons})
endif()
