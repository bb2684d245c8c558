# VXI-11: the transport against a peer that speaks in literal records.
add_library(visa_vxi11_peer STATIC vxi11_peer.cpp link_peer.cpp $<TARGET_OBJECTS:tvrvisa_objects>)
kvtd_defaults(visa_vxi11_peer)
target_include_directories(visa_vxi11_peer PUBLIC ${PROJECT_SOURCE_DIR}/platform/visa)
target_link_libraries(visa_vxi11_peer PUBLIC kvtd_test_support PkgConfig::TIRPC GTest::gmock)

kvtd_test(visa_vxi11_test
  SOURCES vxi11_open_test.cpp vxi11_data_test.cpp vxi11_query_test.cpp vxi11_session_test.cpp
          vxi11_control_test.cpp vxi11_abort_test.cpp
          vxi11_interrupt_test.cpp vxi11_hostile_test.cpp
  LIBS visa_vxi11_peer
  LABELS visa vxi11)

kvtd_test(visa_vxi11_cost_test SOURCES vxi11_cost_test.cpp LIBS visa_vxi11_peer LABELS visa vxi11)
target_link_options(visa_vxi11_cost_test PRIVATE -Wl,--wrap=send,--wrap=sendmsg,--wrap=recv,--wrap=poll)

if(TARGET td481x2c-instrument)
  kvtd_test(visa_vxi11_instrument_test
    SOURCES vxi11_instrument_test.cpp LIBS visa_vxi11_peer LABELS visa instrument vxi11)
  add_dependencies(visa_vxi11_instrument_test td481x2c-instrument)
  target_compile_definitions(visa_vxi11_instrument_test PRIVATE
    KVTD_INSTRUMENT="$<TARGET_FILE:td481x2c-instrument>")
endif()
