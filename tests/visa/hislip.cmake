# HiSLIP: the transport against a peer that speaks in literal frames.
kvtd_test(visa_hislip_test
  SOURCES hislip_open_test.cpp hislip_data_test.cpp hislip_answer_test.cpp hislip_control_test.cpp
          hislip_events_test.cpp hislip_hostile_test.cpp hislip_locks_test.cpp hislip_session_test.cpp
  LIBS visa_hislip_peer
  LABELS visa hislip)

kvtd_test(visa_hislip_cost_test SOURCES hislip_cost_test.cpp LIBS visa_hislip_peer LABELS visa hislip)
target_link_options(visa_hislip_cost_test PRIVATE -Wl,--wrap=send,--wrap=sendmsg,--wrap=recv,--wrap=poll)

kvtd_test(visa_hislip_full_test SOURCES hislip_full_test.cpp LIBS visa_hislip_peer LABELS visa hislip)
target_link_options(visa_hislip_full_test PRIVATE -Wl,--wrap=send)
