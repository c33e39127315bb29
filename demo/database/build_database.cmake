# Builds the SQLite database DATABASE by running the SQL files FILES ("|"-separated) in order
# through the sqlite3 tool SQLITE3. The database is made beside its place and renamed into it at
# the end, so a failing file never leaves a half-built database behind.
# cmake -DSQLITE3=... -DDATABASE=... -DFILES=a.sql|b.sql -P build_database.cmake
string(REPLACE "|" ";" files "${FILES}")
set(partial "${DATABASE}.partial")
get_filename_component(folder "${DATABASE}" DIRECTORY)
file(MAKE_DIRECTORY "${folder}")
file(REMOVE "${partial}")
foreach(file IN LISTS files)
  execute_process(
    COMMAND "${SQLITE3}" -batch -bail "${partial}"
    INPUT_FILE "${file}"
    RESULT_VARIABLE result
    ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    file(REMOVE "${partial}")
    message(FATAL_ERROR "${file}: ${errors}")
  endif()
endforeach()
file(RENAME "${partial}" "${DATABASE}")
