morvel_test(editor_rules_test LABEL unit
  SOURCES
    curve_fit_test.cpp
    filter_test.cpp
    transformation_test.cpp
  LINKS variables)

morvel_test(editors_gui LABEL gui
  SOURCES
    curve_fit_gui_test.cpp
    transformation_gui_test.cpp
    variable_settings_gui_test.cpp
  LINKS variables_editors)
