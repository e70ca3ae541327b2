#include <benchmark/benchmark.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "bench/benchmarks.h"
#include "bench/silent_user.h"
#include "bench/stopwatch.h"
#include "datafile/reader.h"
#include "datafile/writer.h"
#include "text/integers.h"

namespace kov {
namespace {

/// A new folder for temporary files, removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "kov-bench-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot make the folder " + name);
    path_ = name;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::filesystem::path operator/(const char* name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

/// A square of points in the plane with floating quantities, as a walk leaves them.
Lmap plane_row(std::int32_t side) {
  Lmap row;
  for (std::int32_t k1 = 0; k1 < side; ++k1) {
    Lk key = Lk::at(0, 200, k1);
    for (std::int32_t k2 = 0; k2 < side; ++k2) {
      key.coo[2] = k2;
      row.set(key, cotyp::floating(1.0 / (1 + k1 * side + k2), 0.0));
    }
  }
  return row;
}

/// A document, and the file that it is written to and read from.
struct FileCase {
  SilentUser user;
  Document document{user.messages()};
  TemporaryFolder folder;
  std::filesystem::path path = folder / "plane.aa1";

  explicit FileCase(Scale scale) {
    document.cph.InitPrgPar(WindowFacts{});
    document.lmap = plane_row(scale == Scale::full ? 500 : 10);
    write();
  }

  void write() {
    if (!write_data_file(path, document, WithLattices::yes, user.progress())) {
      throw std::runtime_error("the file was not written");
    }
  }

  void read() {
    Document copy(user.messages());
    copy.cph.InitPrgPar(WindowFacts{});
    CurrentFile current;
    auto file = open_data_file(path, copy, WindowFacts{}, user.messages());
    if (!file ||
        read_opened_file(std::move(*file), copy, current, every_step, user) != ReadOutcome::completed ||
        copy.lmap.count() != document.lmap.count()) {
      throw std::runtime_error("the file was not read");
    }
  }

  std::string size_text() const {
    return ", " + int_text(static_cast<std::int64_t>(document.lmap.count())) + " points";
  }
};

template <class Operation>
void measure(benchmark::State& state, const FileCase& file, const Operation& operation) {
  FastestTime time;
  for ([[maybe_unused]] auto iteration : state) time.measure(state, operation);
  const auto bytes = static_cast<double>(std::filesystem::file_size(file.path));
  state.counters["points/s"] = static_cast<double>(file.document.lmap.count()) / time.seconds();
  state.counters["MB/s"] = 1e-6 * bytes / time.seconds();
}

}  // namespace

void register_file_benchmarks(Scale scale) {
  const auto file = std::make_shared<FileCase>(scale);
  const auto add = [&](const std::string& name, void (FileCase::*operation)()) {
    benchmark::RegisterBenchmark((name + file->size_text()).c_str(),
                                 [file, operation](benchmark::State& state) {
                                   measure(state, *file, [&] { ((*file).*operation)(); });
                                 })
        ->UseManualTime()
        ->MinTime(seconds_per_benchmark(scale));
  };
  add("write a data file", &FileCase::write);
  add("read a data file", &FileCase::read);
}

}  // namespace kov
