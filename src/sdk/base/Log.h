#ifndef SDK_BASE_LOG_H
#define SDK_BASE_LOG_H

#include <string>

namespace orva
{

// Writes a line with the time to the library's log file (sdk.log in the folder that ORVA_GetLogDirectory gives, kept
// below 1 MB, one older file beside it). Any thread; never fails. Callers never log a contact's data.
void logLine(const std::string& text) noexcept;

// The same, of printf's manner.
void logFormat(const char* format, ...) noexcept __attribute__((format(printf, 1, 2)));

} // namespace orva

#endif // SDK_BASE_LOG_H
