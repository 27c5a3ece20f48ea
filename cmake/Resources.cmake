# The target orlamo_resources fills <build folder>/resources, where the program looks first: string tables
# (Localizable_<language>.ts) are compiled, everything else is copied. Also installs the folder.
file(GLOB resource_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/*)
set(resource_folder ${PROJECT_BINARY_DIR}/resources)
set(resource_outputs)
foreach(source IN LISTS resource_files)
  get_filename_component(name ${source} NAME)
  if(IS_DIRECTORY ${source} OR name STREQUAL "CMakeLists.txt")
    continue()
  elseif(name MATCHES "\\.ts$")
    string(REGEX REPLACE "\\.ts$" ".qm" name ${name})
    set(command Qt6::lrelease -silent ${source} -qm ${resource_folder}/${name})
  else()
    set(command ${CMAKE_COMMAND} -E copy ${source} ${resource_folder}/${name})
  endif()
  add_custom_command(
    OUTPUT ${resource_folder}/${name}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${resource_folder}
    COMMAND ${command}
    DEPENDS ${source}
    VERBATIM)
  list(APPEND resource_outputs ${resource_folder}/${name})
endforeach()
add_custom_target(orlamo_resources ALL DEPENDS ${resource_outputs})
install(DIRECTORY ${resource_folder}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/orlamo)
