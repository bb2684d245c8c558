# VXI-11: the transport against a peer that speaks in literal records.
kvtd_test(visa_vxi11_test
  SOURCES vxi11_open_test.cpp vxi11_data_test.cpp vxi11_query_test.cpp vxi11_session_test.cpp
          vxi11_control_test.cpp vxi11_abort_test.cpp
          vxi11_interrupt_test.cpp vxi11_hostile_test.cpp
  LIBS visa_vxi11_peer
  LABELS visa vxi11)

kvtd_test(visa_vxi11_cost_test SOURCES vxi11_cost_test.cpp LIBS visa_vxi11_peer LABELS visa vxi11)
target_link_options(visa_vxi11_cost_test PRIVATE -Wl,--wrap=send,--wrap=sendmsg,--wrap=recv,--wrap=poll)
