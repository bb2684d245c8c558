#include "DecimalComma.h"

#include <clocale>
#include <cstdlib>
#include <cstring>

namespace kvtd::test {

DecimalComma::DecimalComma() {
  ::setenv("LOCPATH", KVTD_TEST_LOCALES, 1);
  std::setlocale(LC_ALL, "de_DE.UTF-8");
}

DecimalComma::~DecimalComma() {
  std::setlocale(LC_ALL, "C");
  ::unsetenv("LOCPATH");
}

bool DecimalComma::InForce() { return std::strcmp(",", std::localeconv()->decimal_point) == 0; }

}  // namespace kvtd::test
