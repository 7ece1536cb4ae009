# Read by CPack before it makes the package. Without dpkg-shlibdeps it would make one that depends on
# no library and starts nowhere, and without file it would not say why it makes none.
foreach(tool dpkg-shlibdeps file)
  find_program(found_${tool} ${tool})
  if(NOT found_${tool})
    message(FATAL_ERROR "Making the Debian package needs ${tool}: apt install dpkg-dev file")
  endif()
endforeach()
