#ifndef PBCTL_SPOOL_H
#define PBCTL_SPOOL_H

#include <string>

namespace pbctl
{

// A file argument that may be "-": then a private file stands in for the standard input or output.
class Spool
{
public:
    enum class Way { In, Out };

    // Way::In reads the whole standard input first. SdkError if that or the file cannot be had.
    Spool(const std::string& argument, Way way);
    ~Spool();
    Spool(const Spool&) = delete;
    Spool& operator=(const Spool&) = delete;

    bool isStandard() const { return !m_folder.empty(); }
    const std::string& path() const { return m_path; }

    // What to call it.
    const std::string& name() const { return m_name; }

    // Whether it begins like a file of vCards.
    bool looksLikeCards() const;

    // Of Way::Out: sends what was written to the standard output.
    void send() const;

private:
    std::string m_folder;
    std::string m_path;
    std::string m_name;
};

} // namespace pbctl

#endif // PBCTL_SPOOL_H
