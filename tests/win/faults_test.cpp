// What settings and templates are left when one system call fails, or all from one on.
#include <algorithm>
#include <set>

#include "authoring/templates/mTemplateLoad.h"
#include "authoring/templates/template_store.h"
#include "files/modPubFuncs.h"
#include "ftp/site_store.h"
#include "settings/app_settings.h"
#include "shell/start_up.h"
#include "win/app_test.h"
#include "win/failing_calls.h"

namespace {

constexpr int kSites = 5;

class FaultsTest : public AppTest {
 protected:
    void TearDown() override {
        AppTest::TearDown();
        for (int i = 0; i < 10; ++i) authoring::SetFileReadOnly(authoring::TemplatePath(nameOf(i)), false);
        DeleteTree(authoring::TemplateFolder());
    }
    static std::string nameOf(int i) { return "t" + std::to_string(i) + ".htm"; }

    static ftp::Site site(int i) {
        const std::string url = "s" + std::to_string(i);
        return {0, url, "name of " + url, "pass of " + url};
    }
    // How many sites are missing, apart from one that was to be removed, or have another site's login.
    static int lostSites(const std::string& gone) {
        int lost = 0;
        std::set<std::string> urls{gone};
        for (const ftp::Site& site : ftp::ReadSites(ftp::ReadSections())) {
            lost += site.name != "name of " + site.url || site.storedPassword != "pass of " + site.url;
            urls.insert(site.url);
        }
        for (int i = 0; i < kSites; ++i) lost += !urls.contains(site(i).url);
        return lost;
    }

    // A full list; the file of each template contains its name.
    static authoring::TemplateList templates() {
        authoring::TemplateList list;
        for (int i = 0; i < 9; ++i) list[static_cast<std::size_t>(i)] = {nameOf(i), "ID of " + nameOf(i)};
        return list;
    }
    static void prepareTemplates() {
        ::CreateDirectoryA(authoring::TemplateFolder().c_str(), nullptr);
        authoring::SetFileReadOnly(authoring::TemplatePath(nameOf(9)), false);
        ::DeleteFileA(authoring::TemplatePath(nameOf(9)).c_str());
        for (int i = 0; i < 9; ++i) {
            const std::string path = authoring::TemplatePath(nameOf(i));
            if (!modPubFuncs::FileExists(path)) writeFile(path, nameOf(i) + "\r\n");
        }
        authoring::WriteTemplates(templates(), authoring::Moved::up);
    }
    // How many, in the list that the next start makes, are missing, apart from one that was to be removed, or
    // have another template's ID or page.
    static int lostTemplates(int gone) {
        const authoring::TemplateList list = authoring::RebuiltTemplates(
            authoring::ReadTemplates(),
            [](const std::string& name) { return modPubFuncs::FileExists(authoring::TemplatePath(name)); });
        int lost = 0;
        for (const authoring::Template& slot : list)
            lost += !slot.name.empty() && slot.id != "ID of " + slot.name;
        for (int i = 0; i < 9; ++i) {
            const auto wanted = templates()[static_cast<std::size_t>(i)];
            lost += i != gone && std::find(list.begin(), list.end(), wanted) == list.end();
            lost += i != gone && readFile(authoring::TemplatePath(nameOf(i))) != nameOf(i) + "\r\n";
        }
        return lost;
    }

    // Fills in the dialog once it has opened, and cancels it if it stays open after a refusal.
    static void CALLBACK enterTemplate(HWND, UINT, UINT_PTR timer, DWORD) {
        const HWND dialog = seen::Dialog(::GetCurrentProcessId(), "Add a Template");
        if (!dialog) return;
        ::KillTimer(nullptr, timer);
        seen::FillIn(dialog, nameOf(9), "ID of " + nameOf(9), "Enter");
        ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    }

    static void expectNothingLost(const char* what, const std::function<void()>& prepare,
                                  const std::function<void()>& work, const std::function<int()>& lost) {
        const auto check = [&](const Fault& fault) { EXPECT_EQ(lost(), 0) << what << ": " << fault.what; };
        FailEachCall({what, 21, prepare, work, check, Calls::changing, false, {ERROR_ACCESS_DENIED}});
    }
};

TEST_F(FaultsTest, NoChangeOfTheSiteListLosesASite) {
    const auto prepare = [] {
        for (int i = 0; i < kSites; ++i) {
            settings::Save("FTP Sites", std::to_string(i), site(i).url);
            settings::Save("FTP Names", std::to_string(i), site(i).name);
            settings::Save("FTP Passes", std::to_string(i), site(i).storedPassword);
        }
        settings::DeleteKey("FTP Sites", std::to_string(kSites));
        settings::Save("FTP Names", "99", "3");
    };
    expectNothingLost(
        "adding a site", prepare, [] { ftp::Apply(ftp::AddSite(ftp::ReadSections(), site(kSites)).changes); },
        [] { return lostSites(""); });
    expectNothingLost(
        "removing a site", prepare, [] { ftp::Apply(ftp::RemoveSite(ftp::ReadSections(), 1)); },
        [] { return lostSites("s1"); });
}

TEST_F(FaultsTest, NeitherAddingATemplateNorRebuildingTheMenuLosesOne) {
    newPage(nameOf(9));
    const auto add = [this] {
        ::SetTimer(nullptr, 0, 1, enterTemplate);
        run(mnuOptsTempAdd);
    };
    expectNothingLost("adding a template", prepareTemplates, add, [] { return lostTemplates(8); });
    const auto prepare = [] {
        prepareTemplates();
        ::DeleteFileA(authoring::TemplatePath(nameOf(4)).c_str());
    };
    const auto rebuild = [this] { mTemplateLoad::RebuildTemplateMenu(main()); };
    expectNothingLost("a rebuilt menu", prepare, rebuild, [] { return lostTemplates(4); });
}

TEST_F(FaultsTest, WhereMemoryRunsOutACommandReportsItInItsOwnWords) {
    const auto expectEach = [](const std::string& words, int fewest, const std::function<void()>& prepare,
                               const std::function<void()>& work) {
        const auto check = [&](const Fault& fault) {
            const std::string first = fault.said.empty() ? words : fault.said.front();
            EXPECT_TRUE(first.starts_with(words) || first.ends_with("now?\r\n\r\n")) << first;
        };
        FailEachCall({words, fewest, prepare, work, check, Calls::memory, false, {0}, IDNO});
    };
    const std::string large(2000, 'x');
    frmChild& page = newPage(large);
    expectEach(
        "Printer Error", 1, [] {}, [this] { run(mnuFilePrint); });
    writeFile(scratch("large.htm"), large);
    expectEach(
        "There was a loading error", 5, [] {}, [&] { shell::Load(main(), scratch("large.htm")); });
    frmChild* closing = nullptr;
    const auto close = [&] { ::SendMessageW(closing->hwnd(), WM_CLOSE, 0, 0); };
    const auto openChanged = [&] {
        closing = &newPage("");
        closing->setCaption(large);
        type("x");
    };
    expectEach("ShutDown Error: ", 8, openChanged, close);
    page.setCaption(large);
    const auto openBehind = [&] {
        closing = &newPage("");
        activate(page);
    };
    expectEach("ShutDown Error: \r\n", 6, openBehind, close);
}

}  // namespace
