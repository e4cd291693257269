#ifndef PBCTL_SYNCSERVER_H
#define PBCTL_SYNCSERVER_H

#include <string>

namespace pbctl
{

// The folder of cards that is kept the same as an address book on a server, by vdirsyncer with a configuration of our
// own. All of it lies in the data folder and is the user's alone; vdirsyncer's usual places are never touched.
class SyncServer
{
public:
    // Nothing is made yet.
    SyncServer();

    // The folder of cards, and whether there is a configuration.
    const std::string& cards() const { return m_cards; }
    bool isSetUp() const;

    // Writes the configuration for an address book's URL. The password comes from the
    // keyring, or from a command's output where one is given. UsageError for a URL that is neither https nor loopback.
    void setUp(const std::string& url, const std::string& user, const std::string& passwordCommand) const;

    // How the password gets into the keyring.
    static std::string keyringCommand(const std::string& url, const std::string& user);

    // False, with nothing done, while the server cannot be reached. std::runtime_error with vdirsyncer's words if it
    // fails.
    bool exchange() const;

    // For runs by a timer: whether it is time for one, and what became of it. After failures it is time less and less
    // often, down to once in four hours.
    bool isTime() const;
    void noteRun(bool success) const;

private:
    void keepCommon() const;

    std::string m_folder;
    std::string m_cards;
    std::string m_before; // the cards of when both sides were the same, for merging two changes
    std::string m_config;
    std::string m_discovered; // what vdirsyncer knows of the server's address book
    std::string m_url;        // a file with it
    std::string m_next;       // a file with the time of the next run
};

} // namespace pbctl

#endif // PBCTL_SYNCSERVER_H
