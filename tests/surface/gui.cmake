morvel_test(surface_gui LABEL gui SOURCES
  marks_gui_test.cpp
  moving_gui_test.cpp
  panels_gui_test.cpp
  placing_gui_test.cpp
  resizing_gui_test.cpp
  variable_tree_gui_test.cpp)
