# HiSLIP: the transport against a peer that speaks in literal frames.
add_library(visa_hislip_peer STATIC hislip_peer.cpp link_peer.cpp $<TARGET_OBJECTS:tvrvisa_objects>)
kvtd_defaults(visa_hislip_peer)
target_include_directories(visa_hislip_peer PUBLIC ${PROJECT_SOURCE_DIR}/platform/visa)
target_link_libraries(visa_hislip_peer PUBLIC kvtd_test_support PkgConfig::TIRPC GTest::gmock)

kvtd_test(visa_hislip_test
  SOURCES hislip_open_test.cpp hislip_data_test.cpp hislip_answer_test.cpp hislip_control_test.cpp
          hislip_events_test.cpp hislip_hostile_test.cpp hislip_locks_test.cpp hislip_session_test.cpp
  LIBS visa_hislip_peer
  LABELS visa hislip)

kvtd_test(visa_hislip_cost_test SOURCES hislip_cost_test.cpp LIBS visa_hislip_peer LABELS visa hislip)
target_link_options(visa_hislip_cost_test PRIVATE -Wl,--wrap=send,--wrap=sendmsg,--wrap=recv,--wrap=poll)

kvtd_test(visa_hislip_full_test SOURCES hislip_full_test.cpp LIBS visa_hislip_peer LABELS visa hislip)
target_link_options(visa_hislip_full_test PRIVATE -Wl,--wrap=send)

if(TARGET td481x2c-instrument)
  kvtd_test(visa_hislip_instrument_test
    SOURCES hislip_instrument_test.cpp LIBS visa_hislip_peer LABELS visa instrument hislip)
  add_dependencies(visa_hislip_instrument_test td481x2c-instrument)
  target_compile_definitions(visa_hislip_instrument_test PRIVATE
    KVTD_INSTRUMENT="$<TARGET_FILE:td481x2c-instrument>")
endif()
