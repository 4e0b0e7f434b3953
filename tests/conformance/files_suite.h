// Conformance of Files.
#pragma once

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class FilesConformance : public Suite {};

TEST_P(FilesConformance, ReadsEveryByte) {
  std::string bytes;
  for (int value = 0; value < 256; ++value) bytes.push_back(static_cast<char>(value));
  const FileContents contents = platform().files.read(adapter().makeFile(bytes));
  EXPECT_EQ(contents.bytes, bytes);
  EXPECT_EQ(contents.errorDescription, "");
}

TEST_P(FilesConformance, ReadsAnEmptyFile) {
  const FileContents contents = platform().files.read(adapter().makeFile(""));
  EXPECT_EQ(contents.bytes, "");
  EXPECT_EQ(contents.errorDescription, "");
}

TEST_P(FilesConformance, SaysWhyAMissingFileCannotBeRead) {
  const FileContents contents = platform().files.read(adapter().missingFile());
  EXPECT_EQ(contents.bytes, std::nullopt);
  EXPECT_NE(contents.errorDescription, "");
}

TEST_P(FilesConformance, SaysWhyAFolderCannotBeRead) {
  const FileContents contents = platform().files.read(adapter().makeFolder());
  EXPECT_EQ(contents.bytes, std::nullopt);
  EXPECT_NE(contents.errorDescription, "");
}

}  // namespace qv_commons::conformance
