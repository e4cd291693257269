#include "SyncServer.h"

#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>

#include "Arguments.h"
#include "Program.h"
#include "Sdk.h"
#include "Shown.h"
#include "base/Failure.h"
#include "base/Files.h"

namespace fs = std::filesystem;

namespace pbctl
{

namespace
{

constexpr int reachWithin = 10000; // milliseconds
constexpr int firstPause = 15;     // minutes
constexpr int longestPause = 240;
constexpr std::size_t smallFile = 4096;

struct Address {
    std::string host;
    std::string port;
    bool secure = false;
};

// Takes a URL apart; false for one that is none of ours.
bool readUrl(const std::string& url, Address& address)
{
    const std::size_t scheme = url.find("://");
    const std::string name = url.substr(0, scheme);
    if (scheme == std::string::npos || (name != "https" && name != "http"))
        return false;
    const bool odd =
        std::any_of(url.begin(), url.end(), [](char c) { return c <= ' ' || c >= 0x7F || c == '"' || c == '\\'; });
    std::string authority = url.substr(scheme + 3, url.find_first_of("/?#", scheme + 3) - scheme - 3);
    if (odd || authority.empty() || authority.find('@') != std::string::npos)
        return false;
    address.secure = name == "https";
    address.port = address.secure ? "443" : "80";
    const std::size_t bracket = authority.find(']');
    const std::size_t colon = authority.find(':', bracket == std::string::npos ? 0 : bracket);
    if (colon != std::string::npos) {
        address.port = authority.substr(colon + 1);
        authority.erase(colon);
    }
    if (authority.size() > 2 && authority.front() == '[' && authority.back() == ']')
        authority = authority.substr(1, authority.size() - 2);
    address.host = authority;
    return !address.host.empty() && !address.port.empty() &&
           address.port.find_first_not_of("0123456789") == std::string::npos;
}

bool isLoopback(const std::string& host)
{
    if (host == "localhost" || host == "::1")
        return true;
    return host.rfind("127.", 0) == 0 && host.find_first_not_of("0123456789.") == std::string::npos;
}

bool connects(const addrinfo& one)
{
    const int end = ::socket(one.ai_family, one.ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, one.ai_protocol);
    if (end < 0)
        return false;
    bool connected = ::connect(end, one.ai_addr, one.ai_addrlen) == 0;
    if (!connected && errno == EINPROGRESS) {
        pollfd ready = {end, POLLOUT, 0};
        int error = 0;
        socklen_t size = sizeof error;
        connected = ::poll(&ready, 1, reachWithin) > 0 && ::getsockopt(end, SOL_SOCKET, SO_ERROR, &error, &size) == 0 &&
                    error == 0;
    }
    ::close(end);
    return connected;
}

bool isReachable(const Address& address)
{
    addrinfo wanted = {};
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(address.host.c_str(), address.port.c_str(), &wanted, &found) != 0)
        return false;
    const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> owner(found, &::freeaddrinfo);
    for (const addrinfo* one = found; one != nullptr; one = one->ai_next)
        if (connects(*one))
            return true;
    return false;
}

// The data folder, of which the library tells the one for logs.
std::string dataFolder()
{
    unsigned short* log = nullptr;
    check(ORVA_GetLogDirectory(&log), "finding the data folder");
    return fs::path(takeUtf8(log)).parent_path().parent_path().string();
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

} // namespace

SyncServer::SyncServer() : m_folder(dataFolder() + "/sync")
{
    m_cards = m_folder + "/cards";
    m_before = m_folder + "/before";
    m_config = m_folder + "/config";
    m_discovered = m_folder + "/status/contacts.collections";
    m_url = m_folder + "/url";
    m_next = m_folder + "/next";
}

bool SyncServer::isSetUp() const
{
    return orva::fileExists(m_config);
}

std::string SyncServer::keyringCommand(const std::string& url, const std::string& user)
{
    std::string command;
    for (const std::string& word : keyringWords("store", url, user))
        command += (command.empty() ? "" : " ") + word;
    return command;
}

void SyncServer::setUp(const std::string& url, const std::string& user, const std::string& passwordCommand) const
{
    Address address;
    if (!readUrl(url, address))
        throw UsageError("\"" + url + "\" is no URL of an address book");
    if (!address.secure && !isLoopback(address.host))
        throw UsageError("the password would go through the net in the open: use https");
    if (runProgram({"vdirsyncer", "--version"}).code != 0)
        throw std::runtime_error("vdirsyncer is needed, and not installed");
    const std::string program = fs::read_symlink("/proc/self/exe").string();
    const std::vector<std::string> password = passwordCommand.empty()
                                                  ? keyringWords("lookup", url, user)
                                                  : std::vector<std::string>{"sh", "-c", passwordCommand};
    std::vector<std::string> fetch = {"command"};
    fetch.insert(fetch.end(), password.begin(), password.end());
    orva::preparePrivateFolder(m_folder);
    // What is known of another server must not be taken for what was deleted on this one.
    const bool another = orva::readSmallFile(m_url, smallFile) != url + "\n" + user;
    if (another) {
        for (const std::string& stale : {m_folder + "/status", m_before, m_next})
            fs::remove_all(stale);
        orva::replacePrivateFile(m_url, url + "\n" + user);
    }
    // vdirsyncer asks for this anew after each change of its configuration.
    fs::remove(m_discovered);
    for (const std::string& folder : {m_cards, m_before, m_folder + "/status"})
        orva::preparePrivateFolder(folder);
    orva::replacePrivateFile(
        m_config,
        "[general]\nstatus_path = " + quoted(m_folder + "/status") +
            "\n\n[pair contacts]\na = \"phonebook\"\nb = \"server\"\ncollections = null\nconflict_resolution = " +
            list({"command", program, "sync", "--merge", "--before", m_before}) +
            "\n\n[storage phonebook]\ntype = \"filesystem\"\npath = " + quoted(m_cards) +
            "\nfileext = \".vcf\"\n\n[storage server]\ntype = \"carddav\"\nurl = " + quoted(url) +
            "\nusername = " + quoted(user) + "\npassword.fetch = " + list(fetch) + "\n");
}

bool SyncServer::exchange() const
{
    const std::string known = orva::readSmallFile(m_url, smallFile);
    Address address;
    if (!readUrl(known.substr(0, known.find('\n')), address))
        throw std::runtime_error("the configuration of the server is damaged: set it up again");
    if (!isReachable(address))
        return false;
    const std::vector<std::string> client = {"vdirsyncer", "-v", "WARNING", "-c", m_config};
    // Once; no answer is expected, since the URL is that of one address book.
    for (const char* const command : {"discover", "sync"}) {
        if (command == std::string("discover") && orva::fileExists(m_discovered))
            continue;
        std::vector<std::string> words = client;
        words.emplace_back(command);
        const Program::Result result = runProgram(words);
        if (result.code != 0)
            throw std::runtime_error("vdirsyncer failed: " + shown(result.output));
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
    orva::preparePrivateFolder(made);
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
    const std::string text = orva::readSmallFile(m_next, smallFile);
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
    std::sscanf(orva::readSmallFile(m_next, smallFile).c_str(), "%lld %d", &next, &pause);
    pause = std::clamp(pause * 2, 2 * firstPause, longestPause);
    orva::replacePrivateFile(m_next, std::to_string(std::time(nullptr) + 60LL * pause) + " " + std::to_string(pause));
}

} // namespace pbctl
