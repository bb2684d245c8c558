# kvtd_component(name embedded vendor include): an interface target that links the vendor's library when one is
# named and the embedded one otherwise. The headers are ours either way: they state the published interface.
function(kvtd_component name embedded vendor include)
  add_library(${name} INTERFACE)
  target_include_directories(${name} INTERFACE $<BUILD_INTERFACE:${include}>)
  if(vendor)
    target_link_libraries(${name} INTERFACE ${vendor})
  else()
    target_link_libraries(${name} INTERFACE ${embedded})
  endif()
endfunction()
