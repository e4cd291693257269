#ifndef TESTS_SUPPORT_MODEM_PDU_H
#define TESTS_SUPPORT_MODEM_PDU_H

#include "support/modem/Modem.h"

namespace modemsim
{

// Takes apart an SMS-SUBMIT (3GPP TS 23.040, 9.2.2.2) with the service centre's address before it, in hex; false if it
// is none. The length is what +CMGS was told: octets without that address.
bool readSubmit(const std::string& hex, int length, SentMessage& message);

// SMS-DELIVERs, one a part, in hex with an empty service centre's address.
std::vector<std::string> makeDeliver(const std::string& number, const std::string& text);

} // namespace modemsim

#endif // TESTS_SUPPORT_MODEM_PDU_H
