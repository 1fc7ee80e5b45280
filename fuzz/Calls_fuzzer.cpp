// Any sequence of calls, in both key modes, against a model of the store. Each byte of an input chooses a
// call; the bytes behind it choose what it is given.
#include <array>
#include <string>

#include "Host/HostCore.h"
#include "support/Fuzzing.h"
#include "support/Messages.h"
#include "support/StoreModel.h"
#include "support/VirtualFiles.h"

using fuzz::ArrayForm;
using fuzz::require;

namespace {

constexpr int kSatellites = 5;
constexpr int kEpochs = 3;
constexpr int kPositions = 4;

struct Message {
  std::string text;
  ArrayForm arrays;
};

// Messages that share keys, or the satellite, or nothing.
std::vector<Message> makeMessages() {
  std::vector<Message> messages;
  for (int i = 0; i < kSatellites * kEpochs * kPositions; ++i) {
    Lines lines = withText(goldenMessage(), 4, 26, std::to_string(1 + i % kSatellites));
    lines = withText(
        lines, 6, 22,
        "2024 00" + std::to_string(1 + i / kSatellites % kEpochs) + " (01 JAN) 12:34:00.000");
    lines = withText(lines, 9, 27, std::to_string(1 + i / kSatellites / kEpochs));
    Message& message = messages.emplace_back();
    message.text = joined(lines);
    require(VcmStringToArray(message.text.c_str(), message.arrays.numbers.data(),
                             message.arrays.texts.data()) == 0,
            "the messages are good");
  }
  return messages;
}

class Session {
 public:
  explicit Session(fuzz::Input input) : input_(input) {
    useMode(0);
    fuzz::virtualFiles().clear();
  }
  ~Session() { VcmRemoveAllSats(); }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  void run() {
    constexpr void (Session::*kCalls[])() = {
        &Session::addLines,      &Session::addLines, &Session::addFields, &Session::remove,
        &Session::read,          &Session::setField, &Session::update,    &Session::list,
        &Session::findSatellite, &Session::save,     &Session::load,      &Session::changeMode,
        &Session::removeAll};
    while (!input_.empty()) {
      (this->*kCalls[input_.takeBelow(std::size(kCalls))])();
      require(VcmGetCount() == static_cast<std::int32_t>(model_.size()),
              "the count is the model's");
    }
    for (std::int32_t order = 0; order <= VCM_ORDER_KEY; ++order) {
      expectListing(order);
    }
    for (const auto& [key, entry] : model_.entries()) {
      require(ArrayForm::of(key) == entry.message, "every message is as it was stored");
    }
  }

 private:
  static void useMode(std::int32_t mode) { elsetkeymodeset(&mode); }
  static bool usesAddresses() { return elsetkeymodeget() == 1; }
  const Message& message() {
    static const std::vector<Message> messages = makeMessages();
    return messages[static_cast<std::size_t>(input_.takeBelow(kSatellites * kEpochs * kPositions))];
  }
  // A key that is stored, one that was, or any at all.
  std::int64_t anyKey() {
    const int choice = input_.takeBelow(256);
    if (choice >= 250 || everGiven_.empty()) {
      return input_.take<std::int64_t>();
    }
    return everGiven_[static_cast<std::size_t>(choice) % everGiven_.size()];
  }

  void expectAdded(std::int64_t key, const ArrayForm& message) {
    const std::int64_t expected = usesAddresses() ? key : model_.ordinaryKeyFor(message);
    require(key == expected && key >= 0, "a message gets its key");
    if (key != 0) {
      require(model_.find(key) == nullptr && (key % 2 == 0) == usesAddresses(), "a key of its own");
      model_.add(key, message);
      everGiven_.push_back(key);
    }
  }
  void addLines() {
    const Message& given = message();
    expectAdded(VcmAddSatFrLines(given.text.c_str()), given.arrays);
  }
  void addFields() {
    const ArrayForm& given = message().arrays;
    expectAdded(VcmAddSatFrFields(given.texts.data(), given.numbers.data()), given);
  }
  void remove() {
    const std::int64_t key = anyKey();
    require(VcmRemoveSat(key) == (model_.remove(key) ? 0 : 2),
            "what is stored can be removed, once");
  }
  void removeAll() {
    require(VcmRemoveAllSats() == 0, "all can be removed");
    model_.clear();
  }
  void read() {
    const std::int64_t key = anyKey();
    const std::int32_t expected = model_.find(key) != nullptr ? 0 : 2;
    std::array<char, VCM_TEXT_LENGTH> text;
    require(VcmGetLines(key, text.data()) == expected, "lines of what is stored");
    require(VcmGetField(key, input_.takeBelow(50), text.data()) == expected,
            "a field of what is stored");
    ArrayForm form;
    require(VcmRetrieveAllData(key, form.texts.data(), form.numbers.data()) == expected &&
                (expected != 0 || form == *model_.find(key)),
            "arrays of what is stored");
  }
  void setField() {
    const std::int64_t key = anyKey();
    const int x = input_.takeBelow(kPositions);
    ArrayForm* const stored = model_.find(key);
    require(VcmSetField(key, VCM_FIELD_ECIPOSX, std::to_string(x).c_str()) ==
                (stored != nullptr ? 0 : 2),
            "a field of what is stored can be set");
    if (stored != nullptr) {
      stored->numbers[VCM_NUM_ECIPOS] = x;
    }
  }
  void update() {
    const std::int64_t key = anyKey();
    ArrayForm given = message().arrays;
    ArrayForm* const stored = model_.find(key);
    require(VcmUpdateSatFrFields(key, given.texts.data(), given.numbers.data()) ==
                (stored != nullptr ? 0 : 2),
            "what is stored can be updated");
    if (stored != nullptr) {
      given.numbers[VCM_NUM_SATNUM] = stored->numbers[VCM_NUM_SATNUM];
      given.numbers[VCM_NUM_EPOCH] = stored->numbers[VCM_NUM_EPOCH];
      *stored = given;
    }
  }
  std::vector<std::int64_t> expectListing(std::int32_t order) const {
    std::vector<std::int64_t> keys(model_.size());
    VcmGetLoaded(order, keys.data());
    require(keys == model_.listed(order), "a listing is the model's");
    return keys;
  }
  void list() { expectListing(input_.takeBelow(5)); }
  void findSatellite() {
    const std::int32_t satNum = input_.takeBelow(kSatellites + 2);
    const std::int64_t key = VcmGetSatKey(satNum);
    const ArrayForm* const found = model_.find(key);
    require(model_.holdsSatellite(satNum)
                ? found != nullptr && found->numbers[VCM_NUM_SATNUM] == satNum
                : key == -1,
            "a satellite is found when it is stored");
  }
  // With direct addresses a file that was saved and loaded over and over doubles each time.
  bool isLarge() const {
    constexpr std::size_t kLarge = 200;
    return model_.size() + saved_.size() > kLarge;
  }
  void save() {
    if (isLarge()) {
      return;
    }
    const int append = input_.takeBelow(2);
    require(VcmSaveFile("saved", append) == 0, "the store can be saved");
    if (append == 0) {
      saved_.clear();
    }
    for (const auto& [key, entry] : model_.entries()) {
      saved_.push_back(entry.message);
    }
  }
  void load() {
    if (isLarge()) {
      return;
    }
    const bool isThere = fuzz::virtualFiles().contains("saved");
    require((VcmLoadFile("saved") == 0) == isThere, "a file that is there can be loaded");
    if (!isThere || saved_.empty()) {
      return;
    }
    if (!usesAddresses()) {
      for (const ArrayForm& message : saved_) {
        if (const std::int64_t key = model_.ordinaryKeyFor(message); key != 0) {
          expectAdded(key, message);
        }
      }
      return;
    }
    // Each got an address of its own; the order of loading tells which is whose.
    std::vector<std::int64_t> keys(model_.size() + saved_.size());
    require(VcmGetCount() == static_cast<std::int32_t>(keys.size()), "nothing is a duplicate");
    VcmGetLoaded(VCM_ORDER_LOADED, keys.data());
    for (std::size_t i = 0; i < saved_.size(); ++i) {
      expectAdded(keys[keys.size() - saved_.size() + i], saved_[i]);
    }
  }
  void changeMode() { useMode(input_.takeBelow(2)); }

  fuzz::Input input_;
  fuzz::StoreModel model_;
  std::vector<std::int64_t> everGiven_;
  std::vector<ArrayForm> saved_;  // what the file "saved" holds
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Session(fuzz::Input(data, size)).run();
  return 0;
}
