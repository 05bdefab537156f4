#include "vxutil/runtime/qt/QtServices.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

#include "login/qt/QtWindowService.h"
#include "runtime/qt/QtMessageBackend.h"
#include "runtime/qt/QtUserPrompt.h"
#include "runtime/qt/QtWindowUpdateLocker.h"
#include "runtime/qt/StringTableTranslator.h"
#include "vxutil/runtime/RMessageStation.h"
#include "vxutil/runtime/RModule.h"

namespace vx {
namespace {

// The module station's period, kept for the station that replaces it.
constexpr unsigned kDefaultFrequency = 250;

struct QtServices {
    QtUserPrompt prompt;
    RUserPrompt* previousPrompt = nullptr;
    QtWindowService windows;
    WindowService* previousWindows = nullptr;
    StringTableTranslator strings;
    QTranslator qtTexts;
#ifndef _WIN32
    QtTimerSource timers;
    QtMessageQueue queue{timers};
    std::unique_ptr<RMessageStation> station;
    RMessageStation* previousStation = nullptr;
    QtWindowUpdateLocker locker;
    WindowUpdateLocker* previousLocker = nullptr;
#endif
};

QtServices* g_services = nullptr;

// Qt's own buttons and menus speak the language the library's texts were found in.
void LoadQtTranslations(QTranslator& translator) {
    const QString language = QString::fromLatin1(RGetResourceLanguage());
    if (language.isEmpty()) return;
    if (translator.load(QStringLiteral("qtbase_") + language,
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
}

}  // namespace

void InstallQtServices() {
    if (g_services != nullptr ||
        qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
        return;
    g_services = new QtServices;
    g_services->previousPrompt = RUserPrompt::SetCurrent(&g_services->prompt);
    g_services->previousWindows = WindowService::SetCurrent(&g_services->windows);
    QCoreApplication::installTranslator(&g_services->strings);
    LoadQtTranslations(g_services->qtTexts);
#ifndef _WIN32
    const RMessageStation* module = RMessageStation::Module();
    g_services->station = std::make_unique<RMessageStation>(
        module != nullptr ? module->GetFrequency() : kDefaultFrequency, g_services->queue,
        g_services->timers);
    g_services->previousStation = RMessageStation::SetModule(g_services->station.get());
    g_services->previousLocker = RLockWindowUpdate::SetLocker(&g_services->locker);
#endif
}

void RemoveQtServices() {
    if (g_services == nullptr) return;
    RUserPrompt::SetCurrent(g_services->previousPrompt);
    WindowService::SetCurrent(g_services->previousWindows);
#ifndef _WIN32
    RLockWindowUpdate::SetLocker(g_services->previousLocker);
    if (RMessageStation::Module() == g_services->station.get())
        RMessageStation::SetModule(g_services->previousStation);
#endif
    delete g_services;
    g_services = nullptr;
}

}  // namespace vx

namespace {

void InstallQtServicesAtStartup() {
    vx::InstallQtServices();
    qAddPostRoutine(vx::RemoveQtServices);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(InstallQtServicesAtStartup)
