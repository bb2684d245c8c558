# Sweeps, lists, triggering and settling through the public header.
kvtd_test(driver_sweeps_test
  SOURCES rf/sweep_test.cpp rf/sweep_class_view_test.cpp rf/list_test.cpp rf/list_names_test.cpp rf/trigger_test.cpp
          rf/settling_test.cpp
  LIBS kvtd_attribute_cases KVTD::KVTD481X2C
  LABELS driver)
kvtd_over_further_links(driver_sweeps_test LABELS driver)
