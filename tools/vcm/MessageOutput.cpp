#include "MessageOutput.h"

#include <cerrno>

#include "Forms.h"
#include "OutputFile.h"
#include "Screen.h"
#include "VCM/VcmTree/Store.h"

namespace vcmtool {

namespace {

void writeStored(MessageWriter& writer) {
  writer.begin();
  {
    const vcm::StoreReading reading;
    vcm::StoreTree::walkUp(vcm::mediaVcm.root, [&writer](const vcm::VcmBinTree& node) {
      if (const vcm::VcmRecord* const record = vcm::recordOf(node)) {
        writer.message(*record);
      }
    });
  }
  writer.end();
}

// Returns 0 or an errno value.
int write(const std::string& fileName, const std::string& form, bool& allFit) {
  OutputFile file;
  if (const int code = file.open(fileName); code != 0) {
    return code;
  }
  TextOutput output(file.descriptor());
  const auto writer = makeWriter(form, output);
  writeStored(*writer);
  allFit = writer->allFit();
  if (const int code = output.finish(); code != 0) {
    return code;
  }
  return file.commit();
}

}  // namespace

ExitCode writeMessages(const std::string& fileName, const std::string& form) {
  bool allFit = true;
  const int code = write(fileName, form, allFit);
  // A reader that has seen enough is no failure.
  if (code == 0 || code == EPIPE) {
    return allFit ? kFine : kBadInput;
  }
  printFailure(fileName, code);
  return kFailed;
}

}  // namespace vcmtool
