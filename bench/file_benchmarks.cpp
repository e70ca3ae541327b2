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

/// What the quantities of a file are.
struct Kind {
  std::string name;
  cotyp (*quantity)(std::int32_t i);
};

/// All kinds that a run leaves; i counts the points.
const std::array kinds = {
    Kind{"integers", [](std::int32_t i) { return cotyp(i % 2003 - 1001 + (i % 2003 == 1001 ? 1 : 0)); }},
    Kind{"fractions", [](std::int32_t i) { return cotyp(1 + i % 30011, 30030, 0, 1); }},
    Kind{"floating", [](std::int32_t i) { return cotyp::floating(1.0 / (1 + i), 0.0); }},
    Kind{"complex", [](std::int32_t i) { return cotyp::floating(1.0 / (1 + i), -3.7e-9 * (1 + i)); }},
};

/// A square of points in the plane.
Lmap plane_row(std::int32_t side, const Kind& kind) {
  Lmap row;
  for (std::int32_t k1 = 0; k1 < side; ++k1) {
    Lk key = Lk::at(0, 200, k1 - side / 2);
    for (std::int32_t k2 = 0; k2 < side; ++k2) {
      key.coo[2] = k2 - side / 2;
      row.set(key, kind.quantity(k1 * side + k2));
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

  FileCase(Scale scale, const Kind& kind) {
    document.cph.InitPrgPar(WindowFacts{});
    document.lmap = plane_row(scale == Scale::full ? 1000 : 10, kind);
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
  for (const Kind& kind : kinds) {
    const auto file = std::make_shared<FileCase>(scale, kind);
    const auto add = [&](const std::string& action, void (FileCase::*operation)()) {
      benchmark::RegisterBenchmark((action + " a data file, " + kind.name + file->size_text()).c_str(),
                                   [file, operation](benchmark::State& state) {
                                     measure(state, *file, [&] { ((*file).*operation)(); });
                                   })
          ->UseManualTime()
          ->MinTime(seconds_per_benchmark(scale));
    };
    add("write", &FileCase::write);
    add("read", &FileCase::read);
  }
}

}  // namespace kov
