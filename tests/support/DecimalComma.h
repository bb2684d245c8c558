// The process under a locale that writes a comma where the wire has a point, until the end of the scope.

#ifndef KVTD_TESTS_SUPPORT_DECIMAL_COMMA_H
#define KVTD_TESTS_SUPPORT_DECIMAL_COMMA_H

namespace kvtd::test {

class DecimalComma {
 public:
  DecimalComma();
  ~DecimalComma();
  DecimalComma(const DecimalComma&) = delete;
  DecimalComma& operator=(const DecimalComma&) = delete;

  // Whether the C library does write a comma now.
  static bool InForce();
};

}  // namespace kvtd::test

#endif
