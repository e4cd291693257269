#include "SceneContacts.h"

#include <QFile>
#include <QStringList>

#include "Profile.h"
#include "orva/orva_sim.h"

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
    profile.Close();
    ORVA_Sim_Reset(QFile::encodeName(strFolder).constData());
    return bDone;
}
