#include "SceneParts.h"

#include <QAbstractItemView>
#include <QDir>

#include "cards/CardPreview.h"
#include "device/Modem.h"
#include "window/MainWindow.h"
#include "window/PinForm.h"

namespace
{

// Its card waits for the PIN, and takes one more.
class LockedModem : public Modem
{
public:
    bool IsSimulated() const override { return false; }
    ModemStatus Status() const override
    {
        ModemStatus status;
        status.bPresent = true;
        status.enLock = ModemStatus::LOCK_PIN;
        status.iTries = 1;
        return status;
    }
    bool Dial(const QString&, int) override { return false; }
    void HangUp() override {}
    bool Send(const OutgoingMessage&) override { return false; }
    bool Remove(int) override { return false; }
};

} // namespace

void Scenes::addHostDialogs(QList<Scene>& listScenes)
{
    listScenes << scene(
        "cards",
        [] {
            CardPreview preview(QDir::home().filePath("friends.vcf"), Main());
            preview.exec();
        },
        []() -> QWidget* {
            const QAbstractItemView* pList = seen<QAbstractItemView>("linkhand_Cards_list");
            return pList != nullptr && pList->model()->rowCount() == 2 ? seen("linkhand_Cards") : nullptr;
        },
        [] { click("linkhand_Cards_cancel"); });
    listScenes << scene(
        "pin",
        [] {
            LockedModem modem;
            PinForm form(modem, Main());
            form.exec();
        },
        [] { return seen("linkhand_PinForm"); }, [] { click("linkhand_PinForm_close"); });
    // It stands above an empty phonebook; by itself it tells what it says.
    listScenes << scene(
        "welcome", [] { Child<QWidget>("linkhand_WelcomeNote")->show(); }, [] { return seen("linkhand_WelcomeNote"); },
        [] { Child<QWidget>("linkhand_WelcomeNote")->hide(); });
}
