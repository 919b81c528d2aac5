#include "orn/exception.h"

#include <iostream>
#include <utility>

namespace orn {

exception::exception(std::string text) : message(std::move(text))
{
    std::cerr << message << std::endl;
}

exception::~exception() = default;

const char* exception::what() const noexcept
{
    return message.c_str();
}

} // namespace orn
