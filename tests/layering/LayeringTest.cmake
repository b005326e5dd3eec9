# Checks the check: a small tree that breaks each rule once must be reported fault by fault, and
# nothing else in it.
#
#   cmake -D CHECK=Layering.cmake -D TREE=folder -P LayeringTest.cmake
cmake_minimum_required(VERSION 3.22)
file(REMOVE_RECURSE ${TREE})

# A Qt of four headers stands in for the real one, so that the test depends on no version.
foreach(header IN ITEMS QtCore/QString QtGui/QColor QtPrintSupport/QPrinter QtWidgets/QWidget)
  file(WRITE ${TREE}/qt/${header} "")
endforeach()

file(WRITE ${TREE}/layers.cmake "
set(SOURCES ${TREE}/src)
set(MEASURED ${TREE}/src)
set(QT_INCLUDES ${TREE}/qt)
set(LAYERS runtime db form paint print app)
set(MODULES_runtime QtCore)
set(USES_db runtime paint)
set(USES_form runtime)
set(USES_paint form)
set(MODULES_paint QtGui)
set(USES_print paint)
set(MODULES_print QtPrintSupport)
set(USES_app print)
set(MODULES_app QtWidgets)
")

# Kept rules: own headers, headers reached through other layers, Qt where it belongs.
file(WRITE ${TREE}/src/runtime/Kept.h "#include <QString>\n#include <vector>\n")
file(WRITE ${TREE}/src/db/Kept.cpp "#include \"db/Kept.h\"\n#include <sql.h>\n")
file(WRITE ${TREE}/src/paint/Kept.h "#include \"runtime/Kept.h\"\n#include <QtGui/QColor>\n")
file(WRITE ${TREE}/src/print/Kept.h "#include <QColor>\n#include <QPrinter>\n")
file(WRITE ${TREE}/src/app/Kept.h
  "#include <QWidget>\n#include <QPrinter>\n#include \"form/sub/Kept.h\" // in a folder of its own\n")

# Broken rules.
file(WRITE ${TREE}/src/runtime/Upward.h "#include \"form/Kept.h\"\n")
file(WRITE ${TREE}/src/form/Gui.h "  #  include <QColor>\n")
file(WRITE ${TREE}/src/form/sub/Odbc.cpp "#include <sqlext.h>\n")
file(WRITE ${TREE}/src/paint/Beside.h "#include \"db/Kept.h\"\n")
file(WRITE ${TREE}/src/paint/Climb.h "#include \"../form/Kept.h\"\n")
file(WRITE ${TREE}/src/paint/Printer.h "#include <QtPrintSupport/QPrinter>\n")
file(WRITE ${TREE}/src/paint/Sql.h "#include <QtSql/QSqlQuery>\n")
file(WRITE ${TREE}/src/print/Widget.h "#include <QWidget>\n")
string(REPEAT "// a; line [\n" 501 long)
file(WRITE ${TREE}/src/app/Long.cpp "${long}")

execute_process(COMMAND ${CMAKE_COMMAND} -D DESCRIPTION=${TREE}/layers.cmake -P ${CHECK}
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(result EQUAL 0)
  message(FATAL_ERROR "The check passed a tree that breaks every rule:\n${output}")
endif()

set(expected
  "db links paint, which does not lie below it"
  "runtime/Upward.h includes form/Kept.h: runtime does not link form"
  "form/Gui.h includes QColor: form is no place for QtGui"
  "form/sub/Odbc.cpp includes sqlext.h: only db speaks ODBC"
  "paint/Beside.h includes db/Kept.h: paint does not link db"
  "paint/Climb.h includes ../form/Kept.h: a path starts at src/"
  "paint/Printer.h includes QtPrintSupport/QPrinter: paint is no place for QtPrintSupport"
  "paint/Sql.h includes QtSql/QSqlQuery: paint does not link QtSql"
  "print/Widget.h includes QWidget: print is no place for QtWidgets"
  "app/Long.cpp has 501 lines, more than 500")
foreach(fault IN LISTS expected)
  string(FIND "${output}" "${fault}\n" position)
  if(position EQUAL -1)
    message(FATAL_ERROR "The check does not report: ${fault}\nIt says:\n${output}")
  endif()
endforeach()

string(REGEX MATCHALL " (includes|links|has) [^\n]*\n" reported "${output}")
list(LENGTH reported count)
list(LENGTH expected expected_count)
if(NOT count EQUAL expected_count)
  message(FATAL_ERROR "The check reports ${count} faults instead of ${expected_count}:\n${output}")
endif()
