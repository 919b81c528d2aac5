#pragma once

#include <QtGlobal>

#include <string>

// The toolkit's assertion. It stays on in release builds and throws a plain
// std::string, so that a broken invariant ends the process with a readable text
// instead of undefined behaviour.
#define ORN_ASSERT(expression)                                                                     \
    do {                                                                                           \
        if (!(expression)) {                                                                       \
            throw std::string("assert \"" #expression "\" failed at " __FILE__ ":") +              \
                std::to_string(__LINE__) + " in " + Q_FUNC_INFO + "\n";                            \
        }                                                                                          \
    } while (false)
