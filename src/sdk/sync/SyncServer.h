#ifndef SDK_SYNC_SYNCSERVER_H
#define SDK_SYNC_SYNCSERVER_H

#include <string>

#include "base/Program.h"

namespace orva
{

// What the phonebook is kept the same as: a folder of cards that vdirsyncer, with a configuration of our own, keeps the
// same as an address book on a server, or a folder of the user's choice. All of it lies in the data folder and is the
// user's alone; vdirsyncer's usual places are never touched.
class SyncServer
{
public:
    // Nothing is made yet.
    explicit SyncServer(const std::string& dataFolder);

    bool isServer() const;
    bool isFolder() const;
    bool isSetUp() const { return isServer() || isFolder(); }

    // The folder of cards, in either case.
    std::string cards() const;
    std::string url() const;
    std::string user() const;
    std::string passwordCommand() const; // empty: the keyring's

    // Writes the configuration for an address book's URL. The password comes from the keyring, or from a command's
    // output where one is given; `program` is pbctl, which merges two changes. ORVA_E_ARGUMENT for no URL of ours,
    // ORVA_E_UNSUPPORTED for one that is neither https nor loopback, ORVA_E_CLIENT without vdirsyncer.
    void setUp(const std::string& url, const std::string& user, const std::string& passwordCommand,
               const std::string& program) const;
    void setUpFolder(const std::string& folder) const;

    // How the password gets into the keyring, and that it does. ORVA_E_CLIENT if it cannot.
    static std::string keyringCommand(const std::string& url, const std::string& user);
    static void keepPassword(const std::string& url, const std::string& user, const std::string& password);

    // False, with nothing done, while the server cannot be reached. Failure(ORVA_E_CLIENT) with vdirsyncer's words if
    // it fails.
    bool exchange(const GoOn& goOn) const;

    // For runs by a timer: whether it is time for one, and what became of it. After failures it is time less and less
    // often, down to once in four hours.
    bool isTime() const;
    void noteRun(bool success) const;

    // A file for the result of the last run.
    std::string lastRun() const { return m_folder + "/last"; }

private:
    std::string line(int number) const; // of what is known of the server
    void runClient(const char* command, const GoOn& goOn) const;
    void keepCommon() const;

    std::string m_folder;
    std::string m_cards;
    std::string m_before; // the cards of when both sides were the same, for merging two changes
    std::string m_config;
    std::string m_discovered; // what vdirsyncer knows of the server's address book
    std::string m_url;        // a file with it and the user
    std::string m_password;   // a file with the command of the user's that prints it
    std::string m_script;     // prints it in either case
    std::string m_other;      // a file with the path of a folder that is the user's
    std::string m_next;       // a file with the time of the next run
};

} // namespace orva

#endif // SDK_SYNC_SYNCSERVER_H
