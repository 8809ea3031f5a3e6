# Installs the built library into a scratch prefix, then builds and runs a consumer
# against it twice: through find_package(ZelmarMediaLib) and through pkg-config.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "failed (${result}): ${ARGN}\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
if(NOT EXISTS ${prefix}/include/ZelmarMediaLib/ZelmarMediaLib.h)
  message(FATAL_ERROR "the umbrella header was not installed")
endif()

run(${CMAKE_COMMAND} -S ${CONSUMER_DIR} -B ${WORK_DIR}/consumer -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer)
run(${WORK_DIR}/consumer/consumer)

# The pkg-config route: the flags it gives are all that a plain compiler call needs.
file(GLOB pc_dirs ${prefix}/lib*/pkgconfig ${prefix}/lib/*/pkgconfig)
list(GET pc_dirs 0 pc_dir)
execute_process(COMMAND ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${pc_dir} pkg-config --cflags --libs ZelmarMediaLib
  RESULT_VARIABLE result OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "pkg-config does not know ZelmarMediaLib")
endif()
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${CXX_COMPILER} ${CONSUMER_DIR}/main.cpp ${flags} -Wl,-rpath,${prefix}/lib -o ${WORK_DIR}/pkgconfig-consumer)
run(${WORK_DIR}/pkgconfig-consumer)
