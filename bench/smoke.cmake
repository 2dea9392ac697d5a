# Runs every benchmark once with a tiny count: the codec, then the Java harness in both ways of
# attaching event threads, then the report over what they printed.
set(out ${CMAKE_CURRENT_BINARY_DIR}/bench-smoke)
file(MAKE_DIRECTORY ${out})
execute_process(COMMAND ${CODEC_BENCH} --benchmark_min_time=0.001 --benchmark_repetitions=1
                        --benchmark_format=csv --benchmark_out_format=csv
                        --benchmark_out=${out}/codec.csv
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "codec benchmark failed: ${rc}")
endif()
# One repetition has no median row: name the single run as one.
file(READ ${out}/codec.csv csv)
string(REGEX REPLACE "\"(BM_[A-Za-z0-9]+)\"" "\"\\1_median\"" csv "${csv}")
file(WRITE ${out}/codec.csv "${csv}")
foreach(mode default attached)
  if(mode STREQUAL attached)
    set(property -Dorvex.events.threads=attached)
  else()
    set(property)
  endif()
  execute_process(COMMAND ${JAVA} ${property} -Dorvex.jni.library=${BRIDGE}
                          -Dorvex.bench.library=${BENCH_LIBRARY} -cp ${CLASSPATH}
                          orvexbench.Bench ${mode} smoke
                  RESULT_VARIABLE rc OUTPUT_FILE ${out}/${mode}.txt ERROR_VARIABLE err)
  file(READ ${out}/${mode}.txt text)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "Bench ${mode} failed (${rc}):\n${text}\n${err}")
  endif()
endforeach()
foreach(clock "" --cpu)
  execute_process(COMMAND ${JAVA} -cp ${CLASSPATH} orvexbench.Report ${clock} ${out}/codec.csv
                          ${out}/default.txt ${out}/attached.txt
                  RESULT_VARIABLE rc OUTPUT_VARIABLE table ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "report ${clock} failed (${rc}):\n${err}")
  endif()
  message("${table}")
endforeach()
