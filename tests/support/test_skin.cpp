#include "tests/support/test_skin.h"

#include "corvane/platform/base_services/installation.h"
#include "corvane/platform/system/shell/wide_path.h"
#include "tests/support/source_folder.h"

namespace corvane::test {

TestSkin::TestSkin() {
  const auto files = source_folder() / "tests" / "support" / "skin";
  SetSkinFolder(system::wide_path(files.native()).c_str());
}

TestSkin::~TestSkin() { SetSkinFolder(L""); }

void TestSkin::remove_files() { SetSkinFolder(L"no folder"); }

}  // namespace corvane::test
