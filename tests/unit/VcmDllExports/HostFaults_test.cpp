// What the exported functions make of a host that fails them: their result codes and messages, and a
// store that is as it was.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <csignal>

#include "DllExports/VCM/VcmDllVarsUtils/LineExpansion.h"
#include "support/MemoryFile.h"
#include "support/Messages.h"
#include "support/StoreAccess.h"
#include "support/TraceCapture.h"
#include "vcm/Vcm.h"

namespace {

using OpenReplaced = ReplacedHost<&HostReplacements::fileopen>;
using KeyReplaced = ReplacedHost<&HostReplacements::createsatkey>;

const std::string kGolden = joined(goldenMessage());
const std::string kOther = joined(withText(goldenMessage(), 4, 26, "7"));

std::int32_t load() { return VcmLoadFile("main"); }
std::int32_t save() { return VcmSaveFile("out", 0); }
std::int32_t expand() { return vcm::Vcm1LineToMany("in", "out"); }

class HostFaults : public testing::Test {
 protected:
  void SetUp() override {
    emptyStore();
    EXPECT_GT(VcmAddSatFrLines(kOther.c_str()), 0);
    before_ = storeImage();
  }
  void TearDown() override { emptyStore(); }

  void expectUntouched(const Lines& errors) {
    EXPECT_EQ(trace_.takeErrors(), errors);
    EXPECT_TRUE(storeImage() == before_);
  }

  // Loads a file; all that can be seen of it, but for its name, in place of what was stored.
  std::pair<std::string, Lines> loaded(const std::string& path) {
    emptyStore();
    EXPECT_EQ(VcmLoadFile(path.c_str()), 0);
    Lines lines = trace_.takeErrors();
    lines.push_back(trace_.takeInfos().back());
    return {storeImage(), lines};
  }

  // Adds the golden message as text, in arrays and in a file: none of it is stored.
  void expectRefused(std::int64_t result, int dup, const std::string& error) {
    double numbers[VCM_NUM_ARRAY_LENGTH];
    char texts[VCM_CHAR_ARRAY_LENGTH];
    ASSERT_EQ(VcmStringToArray(kGolden.c_str(), numbers, texts), 0);
    EXPECT_EQ(VcmAddSatFrLines(kGolden.c_str()), result);
    EXPECT_EQ(VcmAddSatFrFields(texts, numbers), result);
    EXPECT_EQ(VcmLoadFile(TemporaryFile(kGolden).path().c_str()), 0);
    const std::string count = std::to_string(dup);
    EXPECT_EQ(trace_.takeInfos().back(),
              "Total VCMs = " + count + ", Loaded = 0, Dup = " + count + ", Bad = 0");
    expectUntouched(Lines(3, error));
  }

  TraceCapture trace_;
  std::string before_;
};

TEST_F(HostFaults, OpensThatFail) {
  const struct {
    const char* what;
    std::int32_t (*call)();
    int good;  // opens before the one that fails
    Lines errors;
  } rows[] = {
      {"load", load, 0, {}},
      {"load what a directive names",
       load,
       1,
       {"ReadVcmsFrFileUnit: Unable to open file \"named\", which a directive card names."}},
      {"save", save, 0, {}},
      {"append", [] { return VcmSaveFile("out", 1); }, 0, {}},
      {"expand from", expand, 0, {}},
      {"expand into", expand, 1, {}},
  };
  MemoryFile file{kGolden + "VCMFIL named\n"};
  for (const auto& row : rows) {
    for (const std::int32_t code : {EACCES, -1, INT32_MAX}) {
      SCOPED_TRACE(row.what + (" " + std::to_string(code)));
      int good = row.good;
      const OpenReplaced open([&](auto, auto, auto, std::FILE** stream) {
        *stream = nullptr;
        return good-- > 0 ? file.open(stream) : code;
      });
      EXPECT_EQ(row.call(), code);
      EXPECT_EQ(good, -1) << "opened after the failure";
      expectUntouched(row.errors);
    }
  }
}

// What cannot be rewound is copied to a temporary file, for which there may be no descriptor, or no room.
TEST_F(HostFaults, CopiesThatFail) {
  std::signal(SIGXFSZ, SIG_IGN);
  for (const std::size_t copies : {1U, 10U}) {
    MemoryFile file{std::string(copies * 1000, '*')};
    file.rewinds = false;
    const OpenReplaced open([&](auto, auto, auto, auto stream) { return file.open(stream); });
    for (const auto& [limited, code] : {std::pair(RLIMIT_NOFILE, EMFILE), {RLIMIT_FSIZE, EFBIG}}) {
      rlimit usual{};
      ASSERT_EQ(getrlimit(limited, &usual), 0);
      const rlimit none{0, usual.rlim_max};
      ASSERT_EQ(setrlimit(limited, &none), 0);
      const std::int32_t result = load();
      ASSERT_EQ(setrlimit(limited, &usual), 0);
      EXPECT_EQ(result, code) << copies;
      expectUntouched({});
    }
  }
}

TEST_F(HostFaults, KeysThatCannotBeMade) {
  const KeyReplaced key([](auto...) { return -1; });
  expectRefused(-1, 0,
                "AddRecToMem: Unable to make a key for satellite number         1 and its epoch.");
}

// Keys that go round in a circle. The hundredth that is tried is looked at, but nothing is kept
// there; what finds no place counts as a duplicate.
TEST_F(HostFaults, EndlessCollisions) {
  for (const std::int64_t circle : {1, 2, 7, 98, 99, 100, 1000}) {
    SCOPED_TRACE(circle);
    emptyStore();
    const KeyReplaced key([](auto...) { return 1; });
    const ReplacedHost<&HostReplacements::nextsatkey> next(
        [circle](auto last) { return (*last + 2) % (2 * circle); });
    const std::int64_t most = std::min<std::int64_t>(circle, 99);
    for (std::int64_t taken = 0; taken < most; ++taken) {
      const auto number = static_cast<std::int32_t>(taken);
      ASSERT_EQ(vcm::AddVcmToMem(satelliteAt(5, number)), 1 + 2 * taken);
    }
    before_ = storeImage();
    const std::int64_t last = circle < 100 ? 100 % circle : 99;
    expectRefused(0, 1, withKey("AddRecToMem: Duplicated record/key # found.", 1 + 2 * last));
  }
}

// A file is what can be read of it: as if it ended where it fails, however little comes at a time.
TEST_F(HostFaults, ReadsThatFailOrGiveLittle) {
  MemoryFile file{readFile(VCM_SAMPLES_DIR "/features.vcm") +
                  readFile(VCM_SAMPLES_DIR "/broken.vcm")};
  const auto openFaulty = [&](auto, auto, auto, auto stream) { return file.open(stream); };
  for (std::size_t end = 0; end < file.content.size() + 997; end += 997) {
    const TemporaryFile readable(file.content.substr(0, end));
    const auto expected = loaded(readable.path());
    file.limit = end < file.content.size() ? end : SIZE_MAX;
    for (const std::size_t step : {std::size_t{1}, std::size_t{100'000}}) {
      file.step = step;
      file.rewinds = !file.rewinds;
      const OpenReplaced open(openFaulty);
      EXPECT_TRUE(loaded("main") == expected) << end << " step " << step << ' ' << file.rewinds;
    }
  }
  // In words: the message that is cut is a bad one.
  file = {kGolden + kOther, kGolden.size() + 1000};
  const OpenReplaced open(openFaulty);
  EXPECT_EQ(loaded("main").second,
            (Lines{"ReadVCMFrFileUnit: Invalid line caused read error @ 'SOLAR FLUX'.",
                   "Total VCMs = 2, Loaded = 1, Dup = 0, Bad = 1"}));
}

TEST_F(HostFaults, DisksThatFill) {
  ASSERT_EQ(VcmLoadFile(VCM_SAMPLES_DIR "/features.vcm"), 0);
  trace_.takeErrors();  // there is a duplicate
  before_ = storeImage();
  EXPECT_EQ(VcmSaveFile("/dev/full", 0), 0);
  const std::string line = goldenOneLine() + "\n";
  MemoryFile in{line + line + line + line + line}, out;  // more than a stream keeps back
  const OpenReplaced open([&](auto, auto, auto mode, auto stream) {
    return *mode == 1 ? in.open(stream) : out.open(stream, "w");
  });
  for (const auto call : {save, expand}) {
    out = {};
    EXPECT_EQ(call(), 0);
    const std::string whole = out.content;
    for (std::size_t room = 0; room < whole.size(); room += 1 + room % 500) {
      out = {"", room};
      EXPECT_EQ(call() == 0, call == save) << room;
      EXPECT_TRUE(out.content == whole.substr(0, room)) << room;
    }
  }
  expectUntouched({});
}

}  // namespace
