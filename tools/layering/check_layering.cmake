# Checks that every #include in the library's folders (platform/, modules/, common/) follows the
# layering of docs/architecture.md. Run it with CMake alone, nothing else is needed:
#
#   cmake -DROOT=<source tree> -DQT_INCLUDE_DIR=<Qt's include folder> -P check_layering.cmake
#
# It prints one line per include that breaks a rule ("file:line: rule: includes X (why)") and fails
# when there is at least one. QT_INCLUDE_DIR (the folder that holds QtCore/, QtWidgets/ ...) tells
# which Qt module a bare class header such as <QComboBox> belongs to; without it the script asks
# qtpaths6. An include is read the way the compiler finds it: a quoted name beside the including
# file first, then from the tree's root, then among the system headers; "../" is resolved, so a
# relative path cannot hide a layer. An include inside a /* */ comment or an #if 0 counts too.

if(NOT ROOT OR NOT IS_DIRECTORY "${ROOT}")
  message(FATAL_ERROR "ROOT must name the source tree to check")
endif()
# A relative ROOT ("." from the shell) is read from the current folder; the globs below need it
# absolute.
get_filename_component(ROOT "${ROOT}" ABSOLUTE)
if(NOT QT_INCLUDE_DIR)
  execute_process(COMMAND qtpaths6 --query QT_INSTALL_HEADERS OUTPUT_VARIABLE QT_INCLUDE_DIR
                  OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE qtpaths_result)
endif()
if(NOT IS_DIRECTORY "${QT_INCLUDE_DIR}/QtCore")
  message(FATAL_ERROR "QT_INCLUDE_DIR must name Qt's include folder (the one holding QtCore/)")
endif()

# ---- The rules -------------------------------------------------------------------------------
# layer_rule(NAME FILES <regex> [EXCEPT <regex>] INCLUDES <regex> WHY <text>): a file whose path
# from the root matches FILES and not EXCEPT must not include a header that matches INCLUDES.
# Headers of the tree are matched by their path from the root ("modules/mv_widevc.h"); system
# headers in angle brackets, a bare Qt class header with its module ("<QtWidgets/QComboBox>").
set(layer_rules)
function(layer_rule name)
  cmake_parse_arguments(ARG "" "FILES;EXCEPT;INCLUDES;WHY" "" ${ARGN})
  set(layer_rules ${layer_rules} ${name} PARENT_SCOPE)
  foreach(part FILES EXCEPT INCLUDES WHY)
    set(rule_${name}_${part} "${ARG_${part}}" PARENT_SCOPE)
  endforeach()
endfunction()

set(library "^(platform|modules|common)/")
set(widget_folders "^(common/forms|platform/qt|platform/report)/")
set(public_core_header "^(platform|modules|common)/.*\\.(h|hh|hpp)$")
set(private_header "_p\\.(h|hh|hpp)$")
set(widget_headers "^<Qt(PrintSupport|[A-Za-z0-9]*Widgets)(/|>)")
set(db_drivers "^<(sqlite3|sqlite3ext|sql|sqlext|sqltypes|sqlucode|odbcinst)\\.h>")

layer_rule(platform-uses-above FILES "^platform/" INCLUDES "^(modules|common)/"
           WHY "platform/ uses neither modules/ nor common/")
layer_rule(modules-uses-common FILES "^modules/" INCLUDES "^common/"
           WHY "modules/ does not use common/")
layer_rule(qt-widgets FILES "${library}" EXCEPT "${widget_folders}"
           INCLUDES "(${widget_headers}|${widget_folders})"
           WHY "Qt Widgets only in common/forms, platform/qt and platform/report")
layer_rule(qt-sql FILES "${library}" EXCEPT "^platform/db/" INCLUDES "^<QtSql(/|>)"
           WHY "Qt SQL only inside platform/db")
layer_rule(db-driver FILES "${library}" EXCEPT "^platform/db/" INCLUDES "${db_drivers}"
           WHY "the database drivers only inside platform/db")
layer_rule(public-header FILES "${public_core_header}" EXCEPT "(${private_header}|${widget_folders})"
           INCLUDES "(^<unicode/|^<QtSql(/|>)|${db_drivers}|^<windows\\.h>)"
           WHY "a public header of the core shows no ICU, Qt SQL, database driver or Windows header")
layer_rule(private-header FILES "\\.(h|hh|hpp)$" EXCEPT "${private_header}"
           INCLUDES "${private_header}" WHY "a public header includes no private one")

# ---- Reading includes --------------------------------------------------------------------------

# The name a rule sees for `path`, included from `file` (both from the root) with `delimiter`.
function(include_key file delimiter path out)
  string(REPLACE "\\" "/" path "${path}")
  get_filename_component(folder "${file}" DIRECTORY)
  if(delimiter STREQUAL "\"")
    cmake_path(SET beside NORMALIZE "${folder}/${path}")
    if(EXISTS "${ROOT}/${beside}" AND NOT beside MATCHES "^\\.\\./")
      set(${out} "${beside}" PARENT_SCOPE)
      return()
    endif()
  endif()
  cmake_path(SET from_root NORMALIZE "${path}")
  if(from_root MATCHES "${library}" OR (delimiter STREQUAL "\"" AND EXISTS "${ROOT}/${from_root}"))
    set(${out} "${from_root}" PARENT_SCOPE)
  elseif(path MATCHES "^Q[A-Za-z0-9]+$")
    file(GLOB owners LIST_DIRECTORIES false "${QT_INCLUDE_DIR}/Qt*/${path}")
    if(owners)
      list(GET owners 0 owner)
      get_filename_component(module "${owner}" DIRECTORY)
      get_filename_component(module "${module}" NAME)
      set(${out} "<${module}/${path}>" PARENT_SCOPE)
    else()
      set(${out} "<${path}>" PARENT_SCOPE)
    endif()
  else()
    set(${out} "<${path}>" PARENT_SCOPE)
  endif()
endfunction()

# Appends to `violations` (in the caller) one line per rule that forbids `key` in `file`.
function(check_include file line key)
  foreach(rule ${layer_rules})
    if(file MATCHES "${rule_${rule}_FILES}" AND key MATCHES "${rule_${rule}_INCLUDES}")
      if(NOT rule_${rule}_EXCEPT STREQUAL "" AND file MATCHES "${rule_${rule}_EXCEPT}")
        continue()
      endif()
      list(APPEND violations "${file}:${line}: ${rule}: includes ${key} (${rule_${rule}_WHY})")
    endif()
  endforeach()
  set(violations "${violations}" PARENT_SCOPE)
endfunction()

# Checks every include line of `file`, counting lines so that each report names its line.
function(check_file file)
  file(READ "${ROOT}/${file}" text)
  if(NOT text MATCHES "#[ \t]*include")
    return()
  endif()
  # One list element per line: ";" and brackets, which CMake lists treat specially, go first.
  string(REGEX REPLACE "[][;]" "_" text "${text}")
  string(REPLACE "\n" ";" lines "${text}")
  set(number 0)
  foreach(line IN LISTS lines)
    math(EXPR number "${number} + 1")
    if(line MATCHES "^[ \t]*#[ \t]*include[ \t]*([<\"])([^>\"]+)[>\"]")
      set(path "${CMAKE_MATCH_2}")
      include_key("${file}" "${CMAKE_MATCH_1}" "${path}" key)
      check_include("${file}" ${number} "${key}")
    endif()
  endforeach()
  set(violations "${violations}" PARENT_SCOPE)
endfunction()

# ---- The run ---------------------------------------------------------------------------------
file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE "${ROOT}" "${ROOT}/platform/*"
     "${ROOT}/modules/*" "${ROOT}/common/*")
list(FILTER files INCLUDE REGEX "\\.(h|hh|hpp|c|cc|cpp|cxx|inl|ipp)$")
list(SORT files)
set(violations)
foreach(file IN LISTS files)
  check_file("${file}")
endforeach()

list(LENGTH files checked)
if(checked EQUAL 0)
  message(FATAL_ERROR "no source file found under ${ROOT}/platform, modules or common")
endif()
list(LENGTH violations broken)
foreach(violation IN LISTS violations)
  message(NOTICE "${violation}")
endforeach()
if(broken GREATER 0)
  message(FATAL_ERROR "${broken} include(s) in ${checked} files break the layering")
endif()
message(STATUS "layering holds: ${checked} files checked")
