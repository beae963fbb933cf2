# cmake -D OBJDUMP=... -D FILE=... -P dll-names.cmake
#
# A DLL exports its interface and no more: what its headers mark. Without marks a linker exports everything, which is ten times as
# much.
set(LIMIT 2500)

execute_process(COMMAND ${OBJDUMP} -p ${FILE} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "\n\t\\[ *[0-9]+\\] [A-Za-z_?][^\n]*" names "${text}")
list(LENGTH names count)
message("${count} names")
if(count EQUAL 0 OR count GREATER LIMIT)
  message(FATAL_ERROR "expected 1 to ${LIMIT} names")
endif()
list(FILTER names EXCLUDE REGEX "] _Z[A-Za-z0-9_]*6Ombrel")
if(names)
  list(JOIN names "" names)
  message(FATAL_ERROR "names of others: ${names}")
endif()
