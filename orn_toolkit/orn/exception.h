#pragma once

#include <exception>
#include <string>

namespace orn {

// An exception that announces itself: the text reaches the console the moment
// the object is made, so it is in the log even if nobody catches it.
class exception : public std::exception
{
public:
    explicit exception(std::string text);
    ~exception() override;
    const char* what() const noexcept override;

    std::string message;
};

} // namespace orn
