// Constant rows of the attributes whose handlers are frames. The catalogue prints them; Frames.h runs them.
#pragma once

#include <string>

#include <visatype.h>

#include "EnumMap.h"

namespace tvr {

enum class Frame {
  Cached,     // keeps the value in the session, simulates from there
  Plain,      // always makes its VISA call
  Simulated,  // simulates, and keeps nothing
};

// A hand-written step behind a write that the instrument took; its result becomes the status of the set.
template <class T>
using Then = ViStatus (*)(ViSession vi, T value, ViStatus status);

// `simulated` is the value of a simulated read: always for a row without `set`, before any set for one with it.
struct RealRow {
  using Value = ViReal64;
  ViAttr id;
  const char* name;
  Frame frame;
  const char* get;
  const char* set;
  ViReal64 simulated;
  Then<ViReal64> then;
};

struct IntegerRow {
  using Value = ViInt32;
  ViAttr id;
  const char* name;
  Frame frame;
  const char* get;
  const char* set;
  ViInt32 simulated;
};

struct EnumRow {
  using Value = ViInt32;
  ViAttr id;
  const char* name;
  Frame frame;
  const char* get;
  const char* set;
  ViInt32 simulated;
  const EnumMap& (*words)();
};

struct BooleanRow {
  using Value = ViBoolean;
  ViAttr id;
  const char* name;
  Frame frame;
  const char* get;
  const char* set;
  ViBoolean simulated;
  Then<ViBoolean> then;
};

struct TextRow {
  ViAttr id;
  const char* name;
  Frame frame;
  const char* get;
  const char* set;
  const char* simulated;
  std::string (*convert)(ViConstString text);
};

// Passes a real value on to another attribute, both ways.
struct ForwardRow {
  ViAttr id;
  const char* name;
  ViAttr target;
};

}  // namespace tvr
