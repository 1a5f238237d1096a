// Changing the colours while every page of the program is open.

#include <QApplication>
#include <QStackedWidget>
#include <memory>
#include <vector>

#include "Bench.h"
#include "Nowhere.h"
#include "core/ColorSchemes.h"
#include "core/Settings.h"
#include "core/forms/HelpPage.h"
#include "core/forms/MenuPage.h"
#include "core/forms/SetupPage.h"
#include "library/LibraryOperations.h"
#include "library/forms/ProfilesPage.h"
#include "platform/files/Log.h"
#include "platform/host/QtHost.h"
#include "platform/print/Printer.h"
#include "platform/widgets/Theme.h"
#include "workspace/forms/AnalysisForm.h"

namespace kinalyx::bench {
namespace {

/// In which nothing is open.
class NoAnalysis final : public IAnalysisLink {
  bool IsOpenInAnalysis(const std::string&) const override { return false; }
  int SendToAnalysis(const std::string&, const std::function<void(const std::string&)>&) override { return 0; }
  void GoToAnalysis() override {}
};

const Register kThemeSwitch({"theme_switch", {Target::Of::AtMost, 150, 60}, [] {
                               Log log(ScratchFolder() + "/bench.log");
                               const std::unique_ptr<IHost> host = MakeQtHost(log);
                               const std::unique_ptr<IPrinter> printer = MakePrinter();
                               Settings settings(*host, ScratchFolder() + "/theme", "");
                               settings.LoadSettings();
                               ColorSchemes schemes;
                               ProfileFields fields(ScratchFolder() + "/theme/fields.ini");
                               fields.EnsureFile();
                               fields.SetupFields();
                               LastStudentInfo remembered;
                               PlayScheduler scheduler(*host);
                               PlayerServices players{*host, scheduler};
                               NoAnalysis analysis;
                               LibraryOperations operations(*host, settings, analysis);

                               auto& application = *static_cast<QApplication*>(QCoreApplication::instance());
                               ApplyTheme(application, Theme::FromSlots(schemes.Colours()));
                               Nowhere nowhere;
                               QStackedWidget window;
                               window.resize(1280, 764);
                               window.addWidget(new MenuPage(*host, settings));
                               window.addWidget(
                                   new ProfilesPage(players, *printer, settings, fields, remembered, operations));
                               window.addWidget(new AnalysisForm(*host, settings, players, remembered, nowhere));
                               window.addWidget(new SetupPage(*host, settings, schemes));
                               window.addWidget(new HelpPage(QString()));
                               window.show();
                               // Every page is shown once, as in a program that has been used.
                               for (int page = 0; page < window.count(); ++page) {
                                 window.setCurrentIndex(page);
                                 QCoreApplication::processEvents();
                               }
                               window.setCurrentIndex(3);
                               QCoreApplication::processEvents();

                               std::vector<double> switches;
                               for (const char* design : {"1", "2", "3", "4", "5", "6", "7", "0"}) {
                                 schemes.ApplyDesign(design);
                                 switches.push_back(MeasureMs([&] {
                                   ApplyTheme(application, Theme::FromSlots(schemes.Colours()));
                                   QCoreApplication::processEvents();
                                 }));
                               }
                               return Figure{Median(switches), "ms", 0};
                             }});

}  // namespace
}  // namespace kinalyx::bench
