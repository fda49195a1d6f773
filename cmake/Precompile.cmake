# The preset dev includes this after project(). What the sources include most of Qt and of the standard library
# is compiled once for each target, so that the change of a central header is compiled sooner.
function(orv_precompile)
  foreach(folder IN ITEMS
      banking siblings/accounting siblings/foundation siblings/mintar examples bankbook)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
      get_target_property(type ${target} TYPE)
      if(type MATCHES "LIBRARY|EXECUTABLE")
        target_precompile_headers(${target} PRIVATE
          <QDebug> <QObject> <map> <optional> <set> <sstream>)
      endif()
    endforeach()
  endforeach()
endfunction()
cmake_language(DEFER CALL orv_precompile) # when all targets are there
