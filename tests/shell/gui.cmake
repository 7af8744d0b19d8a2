morvel_test(shell_gui LABEL gui SOURCES
  file_commands_gui_test.cpp
  start_up_gui_test.cpp
  variable_commands_gui_test.cpp)
