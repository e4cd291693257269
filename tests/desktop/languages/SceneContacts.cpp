#include "SceneContacts.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include "Profile.h"
#include "orva/orva_care.h"
#include "orva/orva_sim.h"
#include "orva/orva_store.h"

namespace
{

const char* const CARDS =
    "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Tina Falk\r\nN:Falk;Tina;;;\r\nTEL;TYPE=CELL:+4917010000\r\n"
    "END:VCARD\r\nBEGIN:VCARD\r\nVERSION:3.0\r\nFN:Anna Weber\r\nN:Weber;Anna;;;\r\n"
    "TEL;TYPE=CELL:+4917000138\r\nEND:VCARD\r\n";

// What the pages beside the phonebook show: a pair that looks alike, details, a backup, and one contact in the bin.
bool addCare(Profile& profile)
{
    void* pRecord = nullptr;
    const int iGone = profile.AddContact(4, {"Name", "Gustav Lindqvist", "Mobile", "+46701740605"});
    const int iTwin =
        profile.AddContact(4, {"Name", "anna weber", "Mobile", "+4917000138", "email", "anna@example.org"});
    bool bDone = iGone != 0 && iTwin != 0 && ORVA_PBSrv_GetAddrRecord(1, 4, &pRecord) == ORVA_OK;
    const QByteArray details(
        "ORG:Harbour Office\r\nBDAY:1984-05-17\r\nADR;TYPE=HOME:;;Quay Lane 4;Portsea;;PO1 2AB;\r\n");
    bDone = bDone && ORVA_Care_SetKept(pRecord, details.constData(), int(details.size())) == ORVA_OK &&
            ORVA_PBSrv_UpdateAddrRec(pRecord, 1) == ORVA_OK;
    ORVA_PBSrv_AddrRecord_Release(pRecord);
    return bDone && ORVA_Store_KeepBackup(4, ORVA_BACKUP_ASKED) == ORVA_OK &&
           ORVA_PBSrv_DelAddrRec(iGone, 4) == ORVA_OK;
}

} // namespace

bool SceneContacts::Fill(const QString& strFolder, const QString& strCsvFile)
{
    const QStringList lstNames = {
        "Aaron Zimmermann", "Anna Weber",     "Bjørn Hansen",  "Chloé Martin", "Daniela Stein", "Erik Andersson",
        "Fatma Şahin",      "Grace O'Connor", "Hannah Klein",  "Ivan Petrov",  "Jana Nováková", "Karl Brandt",
        "Lucía Fernández",  "Marta Kowalska", "Nina Rossi",    "李娜",         "王伟",          "محمد العلي",
        "فاطمة حسن",        "Oliver Brown",   "Paula Sánchez", "Quentin Roy",  "Rüdiger Groß",  "Sofia Janssen"};
    Profile profile;
    ORVA_Sim_Reset(QFile::encodeName(strFolder).constData());
    bool bDone = true;
    QList<int> listMembers;
    for (int i = 0; i < lstNames.size(); ++i) {
        const QString strNumber = QString::number(4917000001 + 137 * i);
        listMembers << profile.AddContact(
            4, {"Name", lstNames.at(i), "Mobile", '+' + strNumber, "officePhone",
                i % 3 == 0 ? "+493023125" + QString::number(100 + i) : QString(), "homePhone",
                i % 4 == 0 ? "0301234" + QString::number(100 + i) : QString(), "email",
                i % 2 == 0 ? "contact" + QString::number(i) + "@example.org" : QString()});
        bDone = bDone && listMembers.last() != 0;
    }
    bDone = bDone && profile.AddGroup("Friends", 0, listMembers.mid(0, 5)) != 0 && profile.AddGroup("Work", 0, {}) != 0;
    bDone = bDone && profile.Add(0, "Card", "0171", 6) && profile.Add(1, "Device", "0172", 300);
    QFile file(strCsvFile);
    bDone = bDone && file.open(QIODevice::WriteOnly) &&
            file.write("Full name,Cell,Work,Home,Mail,Remark\nTest,1,2,3,a@b.org,x\n") > 0;
    bDone = bDone && addCare(profile);
    QFile cards(QDir::home().filePath("friends.vcf"));
    bDone = bDone && cards.open(QIODevice::WriteOnly) && cards.write(CARDS) > 0;
    QFile people(QDir::home().filePath("people.csv"));
    bDone = bDone && people.open(QIODevice::WriteOnly) &&
            people.write("Name,Mobile,Shoe\nCarla Neri,+4917020000,38\nDina Roth,none,40\nOla Berg,+4917030000,\n") > 0;
    profile.Close();
    ORVA_Sim_Reset(QFile::encodeName(strFolder).constData());
    return bDone;
}
