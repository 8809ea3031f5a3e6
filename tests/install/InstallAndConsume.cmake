# Installs the built library into a scratch prefix, outside the system's, checks what was
# installed, then builds and runs a consumer against it twice: through find_package(ZelmarMediaLib)
# and through pkg-config, as C++20 with -Wshadow -Werror. It also runs the installed zml-probe,
# which must find both the library and its sample from its own place in the prefix.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
set(strict_flags -std=c++20 -Wall -Wextra -Wshadow -Werror)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "failed (${result}): ${ARGN}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

# The headers: the umbrella is there, private detail/ headers are not, and nothing installed
# reaches for one.
set(include_dir ${prefix}/include/ZelmarMediaLib)
if(NOT EXISTS ${include_dir}/ZelmarMediaLib.h)
  message(FATAL_ERROR "the umbrella header was not installed")
endif()
file(GLOB_RECURSE installed_headers LIST_DIRECTORIES true ${include_dir}/*)
list(FILTER installed_headers INCLUDE REGEX "/detail(/|$)")
if(installed_headers)
  message(FATAL_ERROR "private headers were installed: ${installed_headers}")
endif()
file(GLOB_RECURSE headers ${include_dir}/*.h)
foreach(header IN LISTS headers)
  file(STRINGS ${header} detail_includes REGEX "#include.*/detail/")
  if(detail_includes)
    message(FATAL_ERROR "${header} includes a private header: ${detail_includes}")
  endif()
endforeach()

# Nothing installed may lead back to the source tree, which an installed copy outlives. In
# programs and libraries that is their constant data: debug information may name the sources.
file(GLOB_RECURSE installed LIST_DIRECTORIES false ${prefix}/*)
foreach(file IN LISTS installed)
  if(file MATCHES "^${prefix}/bin/|\\.so[.0-9]*$")
    run(readelf -p .rodata ${file})
    string(FIND "${output}" "${SOURCE_DIR}/" mentions)
    if(NOT mentions EQUAL -1)
      message(FATAL_ERROR "${file} has the source tree compiled in")
    endif()
  elseif(NOT file MATCHES "\\.(mov|dat)$")
    file(STRINGS ${file} mentions REGEX "${SOURCE_DIR}/")
    if(mentions)
      message(FATAL_ERROR "${file} names the source tree: ${mentions}")
    endif()
  endif()
endforeach()

# The installed probe runs from the prefix with no help from the environment, on the sample
# recording installed with it.
set(probe ${prefix}/bin/zml-probe)
run(${CMAKE_COMMAND} -E env --unset=LD_LIBRARY_PATH ${probe})
set(sample ${prefix}/share/ZelmarMediaLib/samples/recording)
string(FIND "${output}" "== ${sample}\n" found)
if(found EQUAL -1)
  message(FATAL_ERROR "the installed probe did not probe ${sample}:\n${output}")
endif()
string(FIND "${output}" "<SourceTrack range=\"(0,10240)\" type=\"0\"" found)
if(found EQUAL -1)
  message(FATAL_ERROR "the installed probe did not read the sample:\n${output}")
endif()

# The compiled Boost libraries are the library's own: neither package passes them on.
file(GLOB package_files ${prefix}/lib*/cmake/ZelmarMediaLib/ZelmarMediaLib*.cmake)
foreach(file IN LISTS package_files)
  file(STRINGS ${file} demands REGEX "INTERFACE_LINK_LIBRARIES.*Boost::(filesystem|date_time|thread|system)|find_dependency\\(Boost.*COMPONENTS")
  if(demands)
    message(FATAL_ERROR "${file} passes compiled Boost libraries on: ${demands}")
  endif()
endforeach()

# The CMake package route.
run(${CMAKE_COMMAND} -S ${CONSUMER_DIR} -B ${WORK_DIR}/consumer -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer)
run(${WORK_DIR}/consumer/consumer)

# The pkg-config route: the flags it gives are all that a plain compiler call needs, and they
# leave the language standard to the consumer.
file(GLOB pc_dirs ${prefix}/lib*/pkgconfig ${prefix}/lib/*/pkgconfig)
list(GET pc_dirs 0 pc_dir)
set(pkg_config ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${pc_dir} pkg-config)
run(${pkg_config} --cflags --libs ZelmarMediaLib)
string(STRIP "${output}" flags)
if(flags MATCHES "-std=")
  message(FATAL_ERROR "pkg-config imposes a language standard: ${flags}")
endif()
if(flags MATCHES "boost_")
  message(FATAL_ERROR "pkg-config passes compiled Boost libraries on: ${flags}")
endif()
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${pkg_config} --modversion ZelmarMediaLib)
string(STRIP "${output}" version)
run(${pkg_config} --variable=libdir ZelmarMediaLib)
string(STRIP "${output}" libdir)
run(${CXX_COMPILER} ${strict_flags} "-DZML_EXPECTED_VERSION=\"${version}\"" ${CONSUMER_DIR}/main.cpp ${flags}
    -Wl,-rpath,${libdir} -o ${WORK_DIR}/pkgconfig-consumer)
run(${WORK_DIR}/pkgconfig-consumer)
