#include "MenusFixture.h"

#include <QRegularExpression>

#include "orva/orva_sdk.h"

bool MenusFixture::Start()
{
    m_pProfile.reset(new Profile);
    m_pHost.reset(new HostDriver);
    const bool bFilled = m_pProfile->Import(ORVA_MEMORY_LOCAL, QStringList() << "Name,Mobile,homePhone,email,Groups"
                                                                             << "Adele Berg,01701,,,Friends"
                                                                             << "Bruno Ahl,01702,,,Friends"
                                                                             << "Carla Diaz,01703,0303,,Friends"
                                                                             << "David Ek,01704,,,Work"
                                                                             << "Emil Falk,01705,,emil@example.org,Work"
                                                                             << "Frida Berg,01706,,,"
                                                                             << "Georg Holm,01707,,berg@example.org,"
                                                                             << "Hanna Ibel,01708,,,"
                                                                             << "Ida Jung,01709,,,") &&
                         m_pProfile->Import(ORVA_MEMORY_CARD, QStringList() << "Name,Number"
                                                                            << "Voicemail,3311"
                                                                            << "Taxi,22456");
    m_pProfile->Close();
    return bFilled && m_pHost->Start(m_pProfile->Path()) &&
           HostDriver::WaitUntil([this] { return m_pHost->Rows(TABLE) == CONTACTS; });
}

QStringList MenusFixture::Stop()
{
    if (m_pHost->Running() && m_pHost->Quit() < 0) {
        return QStringList("the program did not end: ") << Log();
    }
    return m_pHost->ErrorLines();
}

bool MenusFixture::OpenNode(const QString& strNode, int iRows)
{
    return m_pHost->ClickCell(TREE, strNode) &&
           HostDriver::WaitUntil([&] { return m_pHost->Rows(TABLE) == iRows && m_pHost->Widget(TREE).bFocused; });
}

bool MenusFixture::ClickRow(const QString& strContact)
{
    return m_pHost->ClickCell(TABLE, strContact) && HostDriver::WaitUntil([&] {
               return m_pHost->Cell(TABLE, strContact).bSelected && m_pHost->Widget(TABLE).bFocused;
           });
}

bool MenusFixture::AddRow(const QString& strContact)
{
    m_pHost->ClickAtHolding("ctrl", m_pHost->Cell(TABLE, strContact).rect.center());
    return HostDriver::WaitUntil([&] { return m_pHost->Cell(TABLE, strContact).bSelected; });
}

QStringList MenusFixture::MenuEntries()
{
    HostDriver::WaitUntil([this] { return !m_pHost->Actions().isEmpty(); });
    QStringList lstEntries;
    foreach (const ActionInfo& action, m_pHost->Actions()) {
        lstEntries.append((action.bEnabled ? "+" : "-") + action.strText + (action.bSubmenu ? " ▸" : ""));
    }
    return lstEntries;
}

bool MenusFixture::CloseMenu()
{
    m_pHost->Key("Escape");
    return m_pHost->WaitGone("popup");
}

bool MenusFixture::CloseWindow(const QString& strAddress)
{
    const auto isInFront = [this] {
        const QStringList lstActive = m_pHost->Windows().filter(QRegularExpression("\t1$"));
        return !lstActive.isEmpty() && lstActive.filter("\tlinkhand_MainWindow\t").isEmpty();
    };
    if (!HostDriver::WaitUntil(isInFront)) {
        return false;
    }
    m_pHost->Key("Escape");
    return m_pHost->WaitGone(strAddress);
}

QPoint MenusFixture::EmptyPlace(const QString& strAddress)
{
    const QRect rect = m_pHost->Widget(strAddress).rect;
    return QPoint(rect.center().x(), rect.bottom() - 30);
}
