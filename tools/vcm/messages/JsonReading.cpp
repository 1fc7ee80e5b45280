#include "messages/JsonReading.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>
#include <set>

#include "Host/TraceLine.h"
#include "VCM/VcmCardReading/InputFileReader.h"
#include "VCM/VcmTree/Keys.h"
#include "VCM/VcmTree/Store.h"
#include "messages/JsonRecord.h"

namespace vcmtool {

namespace {

using nlohmann::json;
using vcm::MessageOutcome;

class JsonMessageReader {
 public:
  JsonMessageReader(std::string_view name, vcm::ReadingObserver* observer)
      : name_(name), observer_(observer) {}

  // Takes what the parser has come to. False drops a value: messages go as soon as they are stored.
  bool event(int depth, json::parse_event_t event, json& value) {
    switch (event) {
      case json::parse_event_t::object_start:
      case json::parse_event_t::array_start:
        if (depth == 0) {
          messageDepth_ = event == json::parse_event_t::array_start ? 1 : 0;
        }
        return true;
      case json::parse_event_t::key:
        if (depth == messageDepth_ + 1 && !names_.insert(value.get<std::string>()).second) {
          repeated_ = value.get<std::string>();
        }
        return true;
      default:
        if (depth != messageDepth_) {
          return true;
        }
        next([&] { return store(value); });
        names_.clear();
        repeated_.clear();
        return false;
    }
  }

  // The message that begins next, or is not complete, is broken in a way that ends the file.
  void broken(std::string_view how) {
    next([&] { return bad(how); });
  }

  const vcm::MessageCounts& counts() const { return counts_; }

 private:
  template <class Store>
  void next(const Store& store) {
    ++number_;
    if (observer_ != nullptr) {
      observer_->message(number_);
    }
    const MessageOutcome outcome = store();
    if (observer_ != nullptr) {
      observer_->outcome(number_, outcome);
    }
  }

  MessageOutcome bad(std::string_view wrong) {
    ++counts_.bad;
    vcm::logError(jsonMessagePrefix(name_, number_).append(wrong));
    return MessageOutcome::bad;
  }

  MessageOutcome store(const json& message) {
    vcm::VcmRecord record;
    const std::string wrong = repeated_.empty() ? readJsonRecord(message, record)
                                                : fmt::format("{}: stands twice", repeated_);
    if (!wrong.empty()) {
      return bad(wrong);
    }
    const std::int64_t key = vcm::AddVcmToMem(record);
    if (key == vcm::kDuplicateKey) {
      ++counts_.dup;
      return MessageOutcome::duplicate;
    }
    ++(key == vcm::kNoKey ? counts_.bad : counts_.loaded);
    return key == vcm::kNoKey ? MessageOutcome::refused : MessageOutcome::loaded;
  }

  std::string_view name_;
  vcm::ReadingObserver* observer_;
  vcm::MessageCounts counts_;
  std::int64_t number_ = 0;
  int messageDepth_ = 0;
  std::set<std::string> names_;  // of the message that is being parsed
  std::string repeated_;
};

// Without the library's name for the error.
std::string_view textOf(const json::exception& error) {
  const std::string_view text = error.what();
  return text.substr(text.find("] ") + 2);
}

}  // namespace

std::string jsonMessagePrefix(std::string_view fileName, std::int64_t message) {
  return fmt::format("vcm: {}: message {}: ", fileName, message);
}

void readJsonMessages(std::FILE* file, std::string_view name, vcm::ReadingObserver* observer) {
  if (observer != nullptr) {
    observer->file(name);
  }
  JsonMessageReader reader(name, observer);
  try {
    const json nothingLeft =
        json::parse(file, [&reader](int depth, json::parse_event_t event, json& value) {
          return reader.event(depth, event, value);
        });
  } catch (const json::exception& error) {
    reader.broken(
        fmt::format("{}; nothing behind byte {} is read", textOf(error), std::ftell(file)));
  }
  const vcm::MessageCounts& counts = reader.counts();
  vcm::logInfo(fmt::format("Total VCMs = {}, Loaded = {}, Dup = {}, Bad = {}",
                           std::int64_t{counts.loaded} + counts.dup + counts.bad, counts.loaded,
                           counts.dup, counts.bad));
}

}  // namespace vcmtool
