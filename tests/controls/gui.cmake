morvel_test(controls_gui LABEL gui SOURCES
  dialogs_gui_test.cpp
  painting_gui_test.cpp)
