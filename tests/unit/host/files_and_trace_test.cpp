#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "Host/HostCore.h"
#include "host/HostTrace.h"

namespace {

class HostFiles : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = testing::TempDir() + "hostXXXXXX";
    ASSERT_NE(mkdtemp(name.data()), nullptr) << name;
    folder_ = name;
  }
  void TearDown() override {
    unsetenv("HOST_TRACE_LOG");  // NOLINT(concurrency-mt-unsafe): no other thread runs
    hosttracesink(nullptr, nullptr);
    std::filesystem::remove_all(folder_);
  }

  std::string path(const std::string& name) const { return folder_ + "/" + name; }

  static std::string contentOf(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  static std::int32_t open(const std::string& name, std::int32_t mode, std::FILE** stream) {
    const auto length = static_cast<std::int32_t>(name.size());
    return fileopen(name.data(), &length, &mode, stream);
  }

  static void write(const std::string& name, std::int32_t mode, const char* text) {
    std::FILE* stream = nullptr;
    ASSERT_EQ(open(name, mode, &stream), 0) << name;
    std::fputs(text, stream);
    std::fclose(stream);
  }

  static void error(const std::string& text) {
    const auto length = static_cast<std::int32_t>(text.size());
    tracelogerror(text.data(), &length);
  }
  static void info(const std::string& text) {
    const auto length = static_cast<std::int32_t>(text.size());
    traceloginfo(text.data(), &length);
  }

  // Makes the default sink look at its setting anew.
  static void traceTo(const std::string& name) {
    // No other thread runs. NOLINTNEXTLINE(concurrency-mt-unsafe)
    setenv("HOST_TRACE_LOG", name.c_str(), 1);
    hosttracesink(nullptr, nullptr);
  }

 private:
  std::string folder_;
};

using FileOpen = HostFiles;
using Trace = HostFiles;

TEST_F(FileOpen, Modes) {
  const std::string name = path("with blank inside");
  write(name + "   ", 0, "first");
  write(name + std::string("\0 junk", 6), 2, ", more");
  EXPECT_EQ(contentOf(name), "first, more");
  std::FILE* stream = nullptr;
  ASSERT_EQ(open(name, 1, &stream), 0);
  EXPECT_EQ(std::fgetc(stream), 'f');
  std::fclose(stream);
  write(name, 0, "new");
  EXPECT_EQ(contentOf(name), "new");
}

TEST_F(FileOpen, Failures) {
  const std::tuple<std::string, std::int32_t, std::int32_t> table[] = {
      {path("missing"), 1, ENOENT},
      {path("no/such/folder"), 0, ENOENT},
      {"", 1, ENOENT},
      {"    ", 0, ENOENT},
      {path(""), 1, EISDIR},
      {path(""), 0, EISDIR},
      {path("file"), 3, EINVAL},
      {path("file"), -1, EINVAL}};
  for (const auto& [name, mode, code] : table) {
    std::FILE* stream = stdin;
    EXPECT_EQ(open(name, mode, &stream), code) << name << ", mode " << mode;
    EXPECT_EQ(stream, nullptr) << name << ", mode " << mode;
  }
  EXPECT_FALSE(std::filesystem::exists(path("file")));
}

TEST_F(Trace, SinkGetsEveryLineAsItIs) {
  std::vector<std::string> lines;
  const HostTraceSink collect = [](std::int32_t isError, const char* text, std::int32_t length,
                                   void* context) {
    static_cast<std::vector<std::string>*>(context)->push_back(
        (isError != 0 ? "E:" : "I:") + std::string(text, static_cast<std::size_t>(length)));
  };
  hosttracesink(collect, &lines);
  error("bad  ");
  info("");
  hosttracesink(nullptr, nullptr);
  error("after");
  EXPECT_EQ(lines, (std::vector<std::string>{"E:bad  ", "I:"}));
}

TEST_F(Trace, DefaultAppendsToTheNamedFile) {
  std::ofstream(path("log")) << "before\n";
  traceTo(path("log"));
  error("  first   ");
  info("");
  error("third");
  EXPECT_EQ(contentOf(path("log")), "before\n  first\n\nthird\n");
  traceTo(path("other"));
  error("moved");
  EXPECT_EQ(contentOf(path("other")), "moved\n");
  EXPECT_EQ(contentOf(path("log")), "before\n  first\n\nthird\n");
}

TEST_F(Trace, StandardError) {
  traceTo("-");
  testing::internal::CaptureStderr();
  error("seen  ");
  traceTo("");
  error("not seen");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "seen\n");
}

TEST_F(Trace, AFileThatCannotBeOpenedLosesTheLines) {
  traceTo(path("no/such/folder/log"));
  error("lost");
  EXPECT_FALSE(std::filesystem::exists(path("no")));
}

TEST_F(Trace, LinesOfSeveralThreadsStayWhole) {
  constexpr int kThreads = 4;
  constexpr std::size_t kLines = 500;
  traceTo(path("log"));
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([t] {
      for (std::size_t i = 0; i < kLines; ++i) {
        error(std::string(100, static_cast<char>('a' + t)));
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  std::ifstream in(path("log"));
  std::size_t count = 0;
  for (std::string line; std::getline(in, line); ++count) {
    ASSERT_EQ(line, std::string(100, line.empty() ? '?' : line.front())) << "line " << count;
  }
  EXPECT_EQ(count, kThreads * kLines);
}

}  // namespace
