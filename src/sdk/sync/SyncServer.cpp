#include "sync/SyncServer.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <vector>

#include "base/Failure.h"
#include "base/Files.h"
#include "orva/orva_sync.h"
#include "sync/ServerAddress.h"

namespace fs = std::filesystem;

namespace orva
{

namespace
{

constexpr int firstPause = 15; // minutes
constexpr int longestPause = 240;
constexpr std::size_t smallFile = 16384;

// A string of the configuration, which takes them as JSON has them.
std::string quoted(const std::string& text)
{
    std::string out = "\"";
    for (const char c : text) {
        char code[8];
        if (c == '"' || c == '\\')
            out.append(1, '\\').append(1, c);
        else if (static_cast<unsigned char>(c) < ' ' || c == 0x7F)
            out.append(code, static_cast<std::size_t>(std::snprintf(code, sizeof code, "\\u%04x", c)));
        else
            out.push_back(c);
    }
    return out + '"';
}

std::string list(const std::vector<std::string>& words)
{
    std::string out = "[";
    for (const std::string& word : words)
        out += (out.size() > 1 ? ", " : "") + quoted(word);
    return out + "]";
}

std::vector<std::string> keyringWords(const std::string& verb, const std::string& url, const std::string& user)
{
    std::vector<std::string> words = {"secret-tool", verb};
    if (verb == "store")
        words.insert(words.end(), {"--label", "Linkhand"});
    words.insert(words.end(), {"service", "linkhand-sync", "url", url, "user", user});
    return words;
}

// A word as a shell takes it.
std::string shellWord(const std::string& word)
{
    const char plain[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_./:@%+=,";
    if (!word.empty() && word.find_first_not_of(plain) == std::string::npos)
        return word;
    std::string out = "'";
    for (const char c : word)
        out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return out + "'";
}

std::string shellLine(const std::vector<std::string>& words)
{
    std::string line;
    for (const std::string& word : words)
        line += (line.empty() ? "" : " ") + shellWord(word);
    return line;
}

void requireUrl(const std::string& url)
{
    ServerAddress address;
    if (!address.read(url))
        throw Failure(ORVA_E_ARGUMENT, "no URL of an address book");
    if (!address.secure && !address.isLoopback())
        throw Failure(ORVA_E_UNSUPPORTED, "the password would go through the net in the open");
}

} // namespace

SyncServer::SyncServer(const std::string& dataFolder) : m_folder(dataFolder + "/sync")
{
    m_cards = m_folder + "/cards";
    m_before = m_folder + "/before";
    m_config = m_folder + "/config";
    m_discovered = m_folder + "/status/contacts.collections";
    m_url = m_folder + "/url";
    m_password = m_folder + "/password-command";
    m_script = m_folder + "/password.sh";
    m_other = m_folder + "/folder";
    m_next = m_folder + "/next";
}

bool SyncServer::isServer() const
{
    return fileExists(m_config);
}

bool SyncServer::isFolder() const
{
    return !isServer() && fileExists(m_other);
}

std::string SyncServer::cards() const
{
    return isFolder() ? readSmallFile(m_other, smallFile) : m_cards;
}

std::string SyncServer::line(int number) const
{
    std::string text = readSmallFile(m_url, smallFile);
    for (; number > 0; --number)
        text.erase(0, std::min(text.find('\n'), text.size() - 1) + 1);
    return text.substr(0, text.find('\n'));
}

std::string SyncServer::url() const
{
    return line(0);
}

std::string SyncServer::user() const
{
    return line(1);
}

std::string SyncServer::passwordCommand() const
{
    return readSmallFile(m_password, smallFile);
}

std::string SyncServer::keyringCommand(const std::string& url, const std::string& user)
{
    return shellLine(keyringWords("store", url, user));
}

void SyncServer::keepPassword(const std::string& url, const std::string& user, const std::string& password)
{
    requireUrl(url);
    const ProgramResult result = runProgram(keyringWords("store", url, user), GoOn(), password);
    if (result.code != 0)
        throw Failure(ORVA_E_CLIENT, result.ran ? "secret-tool failed: " + result.output
                                                : std::string("secret-tool is not installed"));
}

void SyncServer::setUp(const std::string& url, const std::string& user, const std::string& passwordCommand,
                       const std::string& program) const
{
    requireUrl(url);
    if (user.empty() || user.find('\n') != std::string::npos)
        throw Failure(ORVA_E_ARGUMENT, "no name of a user");
    if (runProgram({"vdirsyncer", "--version"}).code != 0)
        throw Failure(ORVA_E_CLIENT, "vdirsyncer is needed, and not installed");
    preparePrivateFolder(m_folder);
    // What is known of another server must not be taken for what was deleted on this one.
    const bool another = readSmallFile(m_url, smallFile) != url + "\n" + user;
    if (another) {
        for (const std::string& stale : {m_folder + "/status", m_before})
            fs::remove_all(stale);
        replacePrivateFile(m_url, url + "\n" + user);
    }
    // vdirsyncer asks for the first anew after each change of its configuration; a new one need not wait.
    for (const std::string& stale : {m_discovered, m_next, m_password})
        fs::remove(stale);
    for (const std::string& folder : {m_cards, m_before, m_folder + "/status"})
        preparePrivateFolder(folder);
    if (!passwordCommand.empty())
        replacePrivateFile(m_password, passwordCommand);
    // A script, since vdirsyncer takes each word of a command for a path, and so "//" for "/".
    replacePrivateFile(
        m_script, (passwordCommand.empty() ? shellLine(keyringWords("lookup", url, user)) : passwordCommand) + "\n");
    replacePrivateFile(m_config, "[general]\nstatus_path = " + quoted(m_folder + "/status") +
                                     "\n\n[pair contacts]\na = \"phonebook\"\nb = \"server\"\ncollections = null\n"
                                     "conflict_resolution = " +
                                     list({"command", program, "sync", "--merge", "--before", m_before}) +
                                     "\n\n[storage phonebook]\ntype = \"filesystem\"\npath = " + quoted(m_cards) +
                                     "\nfileext = \".vcf\"\n\n[storage server]\ntype = \"carddav\"\nurl = " +
                                     quoted(url) + "\nusername = " + quoted(user) +
                                     "\npassword.fetch = " + list({"command", "sh", m_script}) + "\n");
}

void SyncServer::setUpFolder(const std::string& folder) const
{
    if (folder.empty() || folder.front() != '/' || folder.find('\n') != std::string::npos)
        throw Failure(ORVA_E_ARGUMENT, "no path of a folder");
    preparePrivateFolder(m_folder);
    replacePrivateFile(m_other, folder);
    // What is known of the server stays, for when it is set up again.
    for (const std::string& stale : {m_config, m_next})
        fs::remove(stale);
}

void SyncServer::runClient(const char* command, const GoOn& goOn) const
{
    const ProgramResult result = runProgram({"vdirsyncer", "-v", "WARNING", "-c", m_config, command}, goOn);
    if (result.code != 0)
        throw Failure(ORVA_E_CLIENT, result.ran ? result.output : "it is not installed");
}

bool SyncServer::exchange(const GoOn& goOn) const
{
    ServerAddress address;
    if (!address.read(url()))
        throw Failure(ORVA_E_CLIENT, "the configuration of the server is damaged: set it up again");
    if (!address.isReachable(goOn))
        return false;
    // Once; no answer is expected, since the URL is that of one address book.
    const bool known = fileExists(m_discovered);
    if (!known)
        runClient("discover", goOn);
    try {
        runClient("sync", goOn);
    } catch (const Failure&) {
        if (!known || (goOn && !goOn()))
            throw;
        // It wants to be asked anew where anything is other than it was, such as the password.
        fs::remove(m_discovered);
        runClient("discover", goOn);
        runClient("sync", goOn);
    }
    keepCommon();
    return true;
}

// Files are replaced and never written over, so that a link keeps what was in one.
void SyncServer::keepCommon() const
{
    const std::string made = m_before + ".new";
    const std::string old = m_before + ".old";
    fs::remove_all(made);
    fs::remove_all(old);
    preparePrivateFolder(made);
    for (const auto& entry : fs::directory_iterator(m_cards))
        if (entry.is_regular_file() && !entry.is_symlink() && entry.path().extension() == ".vcf")
            fs::create_hard_link(entry.path(), fs::path(made) / entry.path().filename());
    if (fs::exists(m_before))
        fs::rename(m_before, old);
    fs::rename(made, m_before);
    fs::remove_all(old);
}

bool SyncServer::isTime() const
{
    long long next = 0;
    const std::string text = readSmallFile(m_next, smallFile);
    return std::sscanf(text.c_str(), "%lld", &next) != 1 || std::time(nullptr) >= next ||
           next - std::time(nullptr) > 60LL * longestPause; // the clock was wrong
}

void SyncServer::noteRun(bool success) const
{
    if (success) {
        fs::remove(m_next);
        return;
    }
    long long next = 0;
    int pause = 0;
    std::sscanf(readSmallFile(m_next, smallFile).c_str(), "%lld %d", &next, &pause);
    pause = std::clamp(pause * 2, 2 * firstPause, longestPause);
    replacePrivateFile(m_next, std::to_string(std::time(nullptr) + 60LL * pause) + " " + std::to_string(pause));
}

} // namespace orva
