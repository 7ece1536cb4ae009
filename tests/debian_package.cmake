cmake_minimum_required(VERSION 3.25)

# The Debian package can be made, and asks for the libraries and plugins that the program needs.
# Run as: cmake -D BUILD=<build folder> -D CPACK=<cpack> -P debian_package.cmake
set(place ${BUILD}/package_for_test)
file(REMOVE_RECURSE ${place})
execute_process(COMMAND ${CPACK} --config ${BUILD}/CPackConfig.cmake -B ${place}
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB package ${place}/*.deb)
execute_process(COMMAND dpkg-deb --field ${package} Depends
  OUTPUT_VARIABLE depends COMMAND_ERROR_IS_FATAL ANY)
foreach(needed libqt6widgets6 libqt6svg6 fonts-liberation)
  if(NOT depends MATCHES ${needed})
    message(SEND_ERROR "The package does not depend on ${needed}: ${depends}")
  endif()
endforeach()
file(REMOVE_RECURSE ${place})
