// Fixed point text of a double, exact and fast.
#pragma once

namespace tvr::visa {

constexpr int kMostFixedPlaces = 18;
// Room to write in: comma, sign, 19 digits, point, places, and the bytes that are written beyond them.
constexpr int kFixedRoom = 64;

// Writes `value` with exactly `places` digits (0 to kMostFixedPlaces) behind the point, rounded half to even on the
// exact binary value, as std::to_chars(fixed) does. The end of what was written, or null when the magnitude is 2^63 or
// more or the value is no finite number: then nothing is written.
char* WriteFixed(char* out, double value, int places);

// The same for many, with a comma in front of each; stops at the first value that cannot be written, and moves `values`
// to where it stopped. Needs kFixedRoom for each of them.
char* WriteFixedList(char* out, const double*& values, const double* end, int places);

}  // namespace tvr::visa
