#ifndef LINKHAND_TESTS_WINDOWFIXTURE_H
#define LINKHAND_TESTS_WINDOWFIXTURE_H

#include <QLabel>

#include "ModemFixture.h"
#include "app/ContactLink.h"
#include "app/ModemNotices.h"
#include "app/Services.h"
#include "device/DeviceWatcher.h"
#include "loader/PluginContainer.h"
#include "window/MainWindow.h"
#include "window/PinForm.h"
#include "window/StatusArea.h"

// The main window before a real modem, without plug-ins, with the real texts.
struct WindowFixture : ModemFixture {
    WindowFixture()
        : services(qEnvironmentVariable("LINKHAND_BUILD_DIR"), folder.filePath("s.ini")),
          window(container, store, watcher, &modem)
    {
        services.Publish();
        services.SetContainer(&container);
        services.SetLanguage("en");
        services.SetMainWindow(&window);
        window.BuildPages();
        window.Retranslate();
        window.show();
        pNotices.reset(new ModemNotices(modem, store, window));
    }
    ~WindowFixture() { services.Withdraw(); }

    template <class Widget>
    Widget* Find(const char* pszName)
    {
        return window.findChild<Widget*>(pszName);
    }
    PinForm* Form() { return window.findChild<PinForm*>("linkhand_PinForm"); }
    QString Notice() { return window.Status().Notices().value(0).mid(10); }

    // The texts of everything that is on the screen.
    QStringList Texts()
    {
        QStringList lstTexts;
        foreach (QLabel* pLabel, window.findChildren<QLabel*>()) {
            if (pLabel->isVisible()) {
                lstTexts << pLabel->text();
            }
        }
        return lstTexts;
    }

    Services services;
    DeviceWatcher watcher;
    PluginContainer container;
    MainWindow window;
    ContactLink contacts;
    QScopedPointer<ModemNotices> pNotices;
};

#endif // LINKHAND_TESTS_WINDOWFIXTURE_H
