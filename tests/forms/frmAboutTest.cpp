#include "forms/frmAbout.h"

#include <QDir>

#include "forms/FormFixture.h"
#include "ui/SystemInformation.h"

namespace kestrel {
namespace {

class AboutTest : public FormTest {
 protected:
  QString Path(const QString& name) const { return Files.Path(name); }

  void WriteProgram(const QString& path) {
    Files.Put(path, "#!/bin/sh\n");
    QFile::setPermissions(Path(path), QFile::ReadOwner | QFile::ExeOwner);
  }

  std::optional<ProgramCall> Tool() const {
    return FindDesktopTool({Path("first"), Path("second")}, {Path("programs")});
  }

  ProgramCall Call(const char* program, const QStringList& arguments = {}) const {
    return {Path(QString("programs/") + program), arguments};
  }
};

TEST_F(AboutTest, TheStationsLineAndTheInformationTool) {
  frmAbout form(Everything);
  Use(form, [&] {
    EXPECT_NE(Shown(form, "lblDescription").find("Stations of a test"), std::string::npos);
    Press(form, "cmdSysInfo");
    EXPECT_EQ(System.Messages, QStringList{"System Information Is Unavailable At This Time"});
    System.HasSystemInformation = true;
    Press(form, "cmdSysInfo");
    EXPECT_EQ(System.SystemInformationStarts, 1);
    EXPECT_EQ(System.Messages.size(), 1);
    Press(form, "cmdExit");
  });
}

TEST_F(AboutTest, ToolsAreFoundByEntryThenByProgram) {
  for (const char* folder : {"first", "second", "programs"}) ASSERT_TRUE(QDir().mkdir(Path(folder)));
  EXPECT_FALSE(Tool());

  WriteProgram("programs/hardinfo");
  WriteProgram("programs/plasma-systemmonitor");
  EXPECT_EQ(Tool(), Call("hardinfo"));

  // An entry wins over a program, but only when its own program is there.
  Files.Put("first/gnome-about-panel.desktop", "[Desktop Entry]\nExec=gnome-control-center info-overview\n");
  EXPECT_EQ(Tool(), Call("hardinfo"));
  WriteProgram("programs/gnome-control-center");
  EXPECT_EQ(Tool(), Call("gnome-control-center", {"info-overview"}));

  Files.Put("second/org.kde.kinfocenter.desktop",
            "# made by hand\nExec=no\n[Desktop Action x]\nExec=other\n[Desktop Entry]\nName=Info\n"
            "Exec = \"kinfo center\" %U --caption \"100%% all\" %i\n");
  WriteProgram("programs/kinfo center");
  EXPECT_EQ(Tool(), Call("kinfo center", {"--caption", "100% all"}));
}

TEST_F(AboutTest, TheRegistryRoute) {
  QMap<QString, QString> values = {{"SOFTWARE\\Microsoft\\Shared Tools Location:MSINFO", "C:\\Tools"}};
  QStringList files;
  const auto find = [&] {
    return FindRegisteredTool(
        [&](const QString& key, const QString& value) { return values[key + ':' + value]; },
        [&](const QString& path) { return files.contains(path); });
  };
  EXPECT_FALSE(find()) << "the folder is known, the program is not in it";
  files << "C:\\Tools\\MSINFO32.EXE";
  EXPECT_EQ(find(), (ProgramCall{"C:\\Tools\\MSINFO32.EXE", {}}));
  values["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO:PATH"] = "D:\\msinfo32.exe";
  EXPECT_EQ(find(), (ProgramCall{"D:\\msinfo32.exe", {}}));
}

}  // namespace
}  // namespace kestrel
