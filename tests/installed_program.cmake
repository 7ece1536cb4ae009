cmake_minimum_required(VERSION 3.25)

# What is installed is complete and valid, and the program starts for a user without any settings.
# Run as: cmake -D BUILD=<build folder> -P installed_program.cmake
set(place ${BUILD}/installed_for_test)
file(REMOVE_RECURSE ${place})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${place}
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

set(share ${place}/share)
foreach(file bin/quorvane "share/quorvane/examples/Aurelia Reach.map" share/quorvane/Stars.ini
    share/icons/hicolor/scalable/apps/quorvane.svg share/icons/hicolor/48x48/apps/quorvane.png
    share/icons/hicolor/256x256/apps/quorvane.png share/man/man6/quorvane.6
    share/doc/quorvane/manual.md)
  if(NOT EXISTS ${place}/${file})
    message(SEND_ERROR "${file} is not installed")
  endif()
endforeach()

find_program(desktop_check desktop-file-validate)
if(desktop_check)
  execute_process(COMMAND ${desktop_check} ${share}/applications/quorvane.desktop
    COMMAND_ERROR_IS_FATAL ANY)
endif()
find_program(metainfo_check appstreamcli)
if(metainfo_check)
  execute_process(COMMAND ${metainfo_check} validate --no-net
    ${share}/metainfo/io.github.quorvane.Quorvane.metainfo.xml COMMAND_ERROR_IS_FATAL ANY)
endif()

# It answers without a display.
foreach(answer "version;^Quorvane [0-9]+[.][0-9.]+\n$" "help;^Usage: quorvane")
  list(POP_FRONT answer option)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=DISPLAY --unset=WAYLAND_DISPLAY
      --unset=QT_QPA_PLATFORM ${place}/bin/quorvane ignored --${option}
    TIMEOUT 10 OUTPUT_VARIABLE told RESULT_VARIABLE result)
  if(NOT result EQUAL 0 OR NOT told MATCHES "${answer}")
    message(SEND_ERROR "--${option} gave ${result} and said: ${told}")
  endif()
endforeach()

# It shows its first dialog and waits, so that only the time limit ends it.
file(MAKE_DIRECTORY ${place}/home)
execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=XDG_DATA_HOME HOME=${place}/home
    QT_QPA_PLATFORM=offscreen
    ${place}/bin/quorvane
  TIMEOUT 3 RESULT_VARIABLE result ERROR_VARIABLE messages)
if(NOT result MATCHES "timeout")
  message(SEND_ERROR "The installed program ended by itself: ${result} ${messages}")
endif()
if(NOT EXISTS "${place}/home/.local/share/quorvane/examples/Aurelia Reach.map")
  message(SEND_ERROR "The first start made no copy of the example games that can be saved beside")
endif()
file(REMOVE_RECURSE ${place})
