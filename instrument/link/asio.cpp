// The one place where Asio's own sources are compiled.
#include <asio/impl/src.hpp>
