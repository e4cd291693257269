#ifndef SDK_BASE_FAILURE_H
#define SDK_BASE_FAILURE_H

#include <exception>
#include <string>

#include "orva/orva_sdk.h"

namespace orva
{

// A failed operation inside the library: the code that the caller of the C function gets, and a text for the log.
// The text must never hold a contact's data.
class Failure : public std::exception
{
public:
    explicit Failure(long code, std::string text = std::string()) : m_code(code), m_text(std::move(text)) {}

    long code() const { return m_code; }
    const char* what() const noexcept override { return m_text.c_str(); }

private:
    long m_code;
    std::string m_text;
};

} // namespace orva

#endif // SDK_BASE_FAILURE_H
