#include "pictures/qt/application.h"

#include <gtest/gtest.h>

#include <memory>

namespace kov {
namespace {

std::unique_ptr<FilePictureWriter> writer;

/// The application object must be gone before the library's own globals are.
class ApplicationEnvironment final : public testing::Environment {
 public:
  void SetUp() override {
    writer = std::make_unique<FilePictureWriter>();
    writer->measure();
  }
  void TearDown() override { writer.reset(); }
};

const auto* const environment = testing::AddGlobalTestEnvironment(new ApplicationEnvironment);

}  // namespace

FilePictureWriter& test_writer() { return *writer; }

}  // namespace kov
