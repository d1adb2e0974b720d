#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>

#include "data/DataFolder.h"

namespace kestrel {

/// A data folder of the test's own, with a blank in its path, removed at the end.
class TestFolder {
 public:
  void Put(const QString& name, QByteArrayView bytes) const {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    file.write(bytes.data(), bytes.size());
  }

  /// The file's content; empty when there is none.
  std::string Text(const QString& name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
  }

  void Remove(const QString& name) const { EXPECT_TRUE(QFile::remove(Path(name))) << name.toStdString(); }
  /// The path of a file; without a name that of the folder.
  QString Path(const QString& name = {}) const { return temporary_.filePath(name); }
  const DataFolder& Folder() const { return folder_; }

 private:
  QTemporaryDir temporary_{QDir::tempPath() + "/kestrel test XXXXXX"};
  DataFolder folder_{temporary_.path()};
};

}  // namespace kestrel
