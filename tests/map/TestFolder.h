#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "data/DataFolder.h"

namespace kestrel {

/// A data folder of the test's own, with a blank in its path, removed at the end.
class TestFolder {
 public:
  void Put(const QString& name, const QByteArray& bytes) const {
    QFile file(temporary_.path() + '/' + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    file.write(bytes);
  }
  const DataFolder& Folder() const { return folder_; }

 private:
  QTemporaryDir temporary_{QDir::tempPath() + "/kestrel test XXXXXX"};
  DataFolder folder_{temporary_.path()};
};

}  // namespace kestrel
