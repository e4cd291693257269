#ifndef TESTS_SUPPORT_MODEM_PLAN_H
#define TESTS_SUPPORT_MODEM_PLAN_H

#include "support/modem/Quirks.h"

#include <string>
#include <vector>

namespace modemsim
{

// One location of a phonebook storage. Texts are UTF-8.
struct Entry {
    int location = 0; // counted from 1, whatever the quirk first_index shows
    std::string number;
    std::string name;
    std::string hiddenFields; // what stands behind the name in the modem's answers, as it stands there: ",0,\"Team\""
};

bool operator==(const Entry& a, const Entry& b);

// A phonebook storage: "SM", "ME", "FD", "ON", "LD", "MC", "RC", "EN", "MT" (card and device together).
struct StoragePlan {
    std::string name;
    int total = 20;
    int numberLength = 40;
    int textLength = 18; // octets of the alpha identifier on the card, characters in the device
    std::vector<Entry> entries;
    bool readOnly = false;
};

struct CardPlan {
    std::string iccid = "8949020000123456789";
    std::string imsi = "001010123456789";
    std::string ownNumber = "+491700000001";
    std::string pin; // asked for at the start if it is not empty
    std::string puk = "12345678";
    std::string pin2 = "2345";
    int pinTries = 3;
    int pukTries = 10;
    std::vector<StoragePlan> storages; // SM, FD, ON; standardCard() fills them
    int messageTotal = 10;             // short messages that it holds
};

struct PortPlan {
    enum Kind { Pty, Socket, Tcp };
    Kind kind = Pty;
    // Pty: a symbolic link that is kept on the current terminal, or nothing. Socket: the abstract name, without the
    // leading zero byte. Tcp: the port on 127.0.0.1.
    std::string name;
};

struct Plan {
    std::vector<PortPlan> ports = {PortPlan()};
    CardPlan card;
    bool cardIn = true;
    std::vector<StoragePlan> deviceStorages; // ME and the call lists
    int deviceMessageTotal = 0;              // short messages in the device; 0: it has no such storage
    Quirks quirks;

    std::string manufacturer = "Linkhand Tests";
    std::string model = "Simulated Modem";
    std::string revision = "1.0";
    std::string imei = "350000000000006";
    std::string operatorName = "Test Net";
    int registration = 1; // as +CREG has it: 0 not, 1 home, 2 searching, 3 denied, 5 roaming
    int signal = 20;      // as +CSQ has it, 0 to 31, 99 unknown
    bool radioOn = true;

    int baud = 0;      // bits a second of the line, 10 a byte; 0 is as fast as the machine
    int commandMs = 0; // time that every command takes
    int entryMs = 0;   // time that every entry read takes besides, as from a slow card
    int writeMs = 0;   // time that every entry written takes besides
    int dialMs = 0;    // time from dialling to ringing, and from there to an answer
};

// Five entries on the card (plain, Latin, Cyrillic, Chinese and one with quotation marks, in locations 1, 2, 5, 7 and
// 20), one fixed-dialling entry and an own number.
CardPlan standardCard();
// Two entries in the device's memory and empty call lists.
std::vector<StoragePlan> standardDevice();
// One PTY, the standard card in, the standard device, no quirks.
Plan standardPlan();

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_PLAN_H
