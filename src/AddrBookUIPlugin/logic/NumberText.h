#ifndef ADDRBOOKUIPLUGIN_NUMBERTEXT_H
#define ADDRBOOKUIPLUGIN_NUMBERTEXT_H

#include <QString>

// A telephone number as it came from elsewhere, and as a number's field stores it.
struct NumberText {
    QString strNumber;
    QString strNote; // the line by which a note keeps what a number's field has no room for; empty for none
};

// Cleans a text that is to go into a number's field. False, and nothing written, for a text that is no number, for one
// with an extension where there is no note for it, and with an SDK that cannot clean. With bPauses "p" and "w" may
// stand in the number. Any thread.
bool cleanNumberText(const QString& strText, bool bPauses, bool bNote, NumberText& cleaned);

#endif // ADDRBOOKUIPLUGIN_NUMBERTEXT_H
