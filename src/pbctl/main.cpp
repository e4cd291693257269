#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>

#include "Commands.h"
#include "Sdk.h"
#include "orva/orva_sim.h"

using namespace pbctl;

namespace
{

struct Command {
    const char* name;
    int (*run)(const Arguments& arguments);
    const char* usage;
    const char* help;
};

constexpr Command commands[] = {
    {"list", runList, "[--memory M] [--group PATH] [--json]",
     "Prints contacts, one a line, with tabs between the columns.\n"
     "  --group PATH      only those in a group, such as Friends/Choir\n"
     "  --json            as an array of objects\n"},
    {"find", runFind, "[--memory M] [--json] TEXT",
     "Prints the contacts with a text in one of their fields, however it is written; numbers also as people write "
     "them.\n"
     "Exit code 1 if there is none.\n"
     "  --json            as an array of objects\n"},
    {"add", runAdd, "[--memory M] [--group PATH]... FIELD=VALUE...",
     "Adds a contact and prints its identifier, as in: pbctl add Name=\"Ada Byron\" Mobile=+441632960001\n"
     "  --group PATH      puts it into a group, which is made if it is not there\n"},
    {"show", runShow, "[--memory M] [--json] ID...",
     "Prints all of a contact: its fields, its groups and what is kept with it, such as an address or a photo.\n"
     "  --json            as an array of objects, long values in whole\n"},
    {"edit", runEdit, "[--memory M] ID FIELD=VALUE...",
     "Changes fields of a contact. On the PC also what is kept with it, by the names that vCards have in capitals, as\n"
     "in ORG=\"Acme\" or ADR=\";;1 Street;Town;;;\"; an empty value takes it away.\n"},
    {"delete", runDelete, "[--memory M] ID...",
     "Deletes contacts by their identifiers; those of the PC's phonebook go to the bin.\n"},
    {"duplicates", runDuplicates, "[--memory M]",
     "Prints the contacts that belong together, set by set: \"same\" where the name and a number or an e-mail address\n"
     "are the same, \"number\" where only a number is.\n"},
    {"merge", runMerge, "[--dry-run] ID ID... | --all",
     "Makes one contact of several of the PC's phonebook: the first stays, and takes over what it has no value for, "
     "the\n"
     "groups and what is kept; values without room go to its note. What they said before goes to the bin.\n"
     "  --all             merges everybody whom \"duplicates\" calls the same\n"
     "  --dry-run         only prints what would become of them\n"},
    {"import", runImport, "[--memory M] [OPTION]... FILE | --from APPLICATION",
     "Takes contacts over from a file with titles in its first row (commas, semicolons or tabs), from one of vCards\n"
     "or from a mail program on this computer. Columns are told by their titles; groups come from a column\n"
     "called \"Groups\", \"Categories\" or the like, with \";\" between their names and \"/\" between a group\n"
     "and its sub-group. FILE - is the standard input.\n"
     "  --map FIELD=TITLE takes a field from this column; \"FIELD=\" leaves it empty\n"
     "  --group PATH      puts all of them into a group\n"
     "  --no-groups       makes no groups from the file\n"
     "  --skip-existing   leaves out who is there already: the same name, and a number or an e-mail address the same\n"
     "  --update          changes who is there already to what the file says, and adds the others\n"
     "  --dry-run         only counts, and names what the memory would refuse\n"
     "  --format NAME     vcf or csv, whatever the file's name ends in\n"
     "  --from NAME       evolution or thunderbird, instead of a file\n"},
    {"export", runExport, "[--memory M] [--group PATH] FILE",
     "Writes contacts to a file that spreadsheet and mail programs read; to one whose name ends in .vcf as vCards.\n"
     "FILE - is the standard output. Groups stand in the last column; a file that is there is kept as FILE.~1~.\n"
     "  --group PATH      only those in a group\n"
     "  --format NAME     vcf or csv, whatever the file's name ends in\n"},
    {"groups", runGroups, "", "Prints the groups of the PC's phonebook and how many contacts each has.\n"},
    {"group", runGroup, "add PATH | rename PATH NAME | delete PATH | move PATH TARGET",
     "Changes the groups of the PC's phonebook. A group that is deleted takes its sub-groups along, but no contact;\n"
     "one that is moved comes to lie in the group TARGET, or at the first level for an empty one.\n"},
    {"info", runInfo, "[--memory M] [--json]",
     "Prints how full the memories are and which fields they have.\n"
     "  --json            as an array of objects\n"},
    {"bin", runBin, "[--empty]",
     "Prints what was deleted or overwritten in the PC's phonebook in the last 30 days, the newest first.\n"
     "  --empty           removes all of it for good\n"},
    {"undelete", runUndelete, "ENTRY...",
     "Brings contacts back from the bin, with their groups, and prints their new identifiers.\n"},
    {"check", runCheck, "[--memory M]",
     "Looks for damage in the file of a memory, and says if a damaged one was replaced.\n"},
    {"backup", runBackup, "[--memory M] FILE", "Copies a memory to a file, whatever else is going on.\n"},
    {"backups", runBackups, "[--memory M]",
     "Prints the automatic backups, the newest first: their names, when and before what they were made.\n"},
    {"restore", runRestore, "[--memory M] FILE | --from NAME",
     "Puts a backup in place of a memory; what was there before goes into an automatic backup.\n"
     "  --from NAME       an automatic backup, as \"backups\" names it\n"},
    {"region", runRegion, "[REGION]",
     "Prints the country whose numbers are written without its code, by which numbers are told to be the same; or "
     "sets\n"
     "it for all programs: two letters such as DE, \"none\", or \"locale\" for that of the locale again.\n"},
    {"sync", runSync,
     "[--dry-run] [--force] [--wait SECONDS] [--json] FOLDER |\n"
     "           --setup URL --user NAME [--password-command COMMAND] | --setup FOLDER | --run [--timer] |\n"
     "           --merge [--before FOLDER] FILE FILE",
     "Makes the PC's phonebook and a folder of vCards the same, in both directions, a contact a file, as address book\n"
     "clients have it. Different fields of a contact may be changed on both sides; of two changes of the same field "
     "the\n"
     "later one counts, and what the other said is in the bin. The folder is made if it is not there.\n"
     "  --dry-run         only tells what would be done\n"
     "  --force           deletes however much is gone on one side, and takes a folder that is not the one it was\n"
     "  --wait SECONDS    for another sync or an open form, 60 without it\n"
     "  --json            prints the result as an object\n"
     "  --setup URL       of an address book on a server (CardDAV), https or on this computer, for --run; or the path\n"
     "                    of a folder\n"
     "  --user NAME       on the server; the password is that of the keyring\n"
     "  --password-command COMMAND  prints the password, instead of the keyring\n"
     "  --run             synchronises with that server, by vdirsyncer, or with that folder\n"
     "  --timer           only when it is time: less often after failures, and not without --setup\n"
     "  --merge           makes one card of two of the same contact, in both files, for clients that ask what to do\n"
     "  --before FOLDER   with the cards of when both were the same\n"},
    {"modem", runModem, "[--use CHOICE | --unlock [--last-try]]",
     "Tells about the modem behind card and device, its storages, and what is in the way.\n"
     "  --use CHOICE      from now on: simulated, auto for the modem that is there, or the port of one, such as\n"
     "                    /dev/ttyUSB2\n"
     "  --unlock          reads the card's PIN from the standard input and gives it to the card\n"
     "  --last-try        also if a wrong PIN would lock the card\n"},
};

constexpr const char* commonHelp = "  --memory M        local (the PC's phonebook, the default), card or device\n"
                                   "  --data-dir DIR    the folder with the data, instead of the user's own\n"
                                   "  --hardware CHOICE simulated, auto or the port of a modem, for this once\n"
                                   "  --help            this\n"
                                   "  --version         the version\n"
                                   "\n"
                                   "Exit code: 0 done, 1 failed, 2 misused, 3 something was left behind.\n";

void printHelp(const Command* command)
{
    if (command != nullptr) {
        std::printf("Usage: pbctl %s %s\n\n%s%s", command->name, command->usage, command->help, commonHelp);
        return;
    }
    std::printf("Usage: pbctl COMMAND [OPTION]... [ARGUMENT]...\n\nThe phonebook from the command line.\n\n");
    for (const Command& known : commands)
        std::printf("  %-8s %s\n", known.name, known.usage);
    std::printf("\n%s\"pbctl COMMAND --help\" says more.\n", commonHelp);
}

const Command* findCommand(const std::string& name)
{
    const auto* const found = std::find_if(std::begin(commands), std::end(commands),
                                           [&name](const Command& command) { return name == command.name; });
    return found == std::end(commands) ? nullptr : found;
}

int run(const Arguments& arguments)
{
    std::vector<std::string> words = arguments.words();
    const bool asksForHelp = arguments.has("help") || (!words.empty() && words[0] == "help");
    if (!words.empty() && words[0] == "help")
        words.erase(words.begin());
    const Command* command = words.empty() ? nullptr : findCommand(words[0]);
    if (!words.empty() && command == nullptr)
        throw UsageError("unknown command \"" + words[0] + "\"");
    if (asksForHelp) {
        printHelp(command);
        return done;
    }
    if (arguments.has("version")) {
        std::printf("pbctl %s\n", LINKHAND_VERSION);
        return done;
    }
    if (command == nullptr)
        throw UsageError("a command is missing");
    if (arguments.has("hardware"))
        ::setenv("LINKHAND_MODEM", arguments.value("hardware").c_str(), 1);
    if (arguments.has("data-dir"))
        check(ORVA_Sim_Reset(arguments.value("data-dir").c_str()), "choosing the data folder");
    if (arguments.has("memory"))
        awaitMemory(arguments.memory());
    return command->run(arguments);
}

} // namespace

int main(int argc, char** argv)
{
    int code = failed;
    try {
        code = run(Arguments(argc, argv));
    } catch (const UsageError& error) {
        std::fprintf(stderr, "pbctl: %s\nTry \"pbctl --help\".\n", error.what());
        return misused;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "pbctl: %s\n", error.what());
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        std::fprintf(stderr, "pbctl: the output could not be written\n");
        return failed;
    }
    return code;
}
