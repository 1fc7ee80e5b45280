#include "files/MessageOutput.h"

#include <cerrno>

#include "VCM/VcmTree/Store.h"
#include "files/OutputFile.h"
#include "messages/Forms.h"
#include "terminal/Progress.h"
#include "terminal/Screen.h"
#include "vcm/Vcm.h"

namespace vcmtool {

namespace {

void writeStored(MessageWriter& writer, TextOutput& output, Progress& progress) {
  writer.begin();
  {
    const vcm::StoreReading reading;
    vcm::StoreTree::walkUp(vcm::mediaVcm.root, [&](const vcm::VcmBinTree& node) {
      const vcm::VcmRecord* const record = vcm::recordOf(node);
      if (record != nullptr && output.lineDone()) {
        writer.message(*record);
        progress.count();
      }
    });
  }
  writer.end();
}

// Returns 0 or an errno value.
int write(const std::string& fileName, const std::string& form, bool onlyIfAllFit, bool& allFit) {
  OutputFile file;
  if (const int code = file.open(fileName); code != 0) {
    return code;
  }
  TextOutput output(file.descriptor());
  const auto writer = makeWriter(form, output);
  Progress progress("Writing");
  progress.file(fileName, VcmGetCount());
  writeStored(*writer, output, progress);
  allFit = writer->allFit();
  if (const int code = output.finish(); code != 0) {
    return code;
  }
  return allFit || !onlyIfAllFit ? file.commit() : 0;
}

}  // namespace

ExitCode writeMessages(const std::string& fileName, const std::string& form, bool onlyIfAllFit) {
  bool allFit = true;
  const int code = write(fileName, form, onlyIfAllFit, allFit);
  // A reader that has seen enough is no failure.
  if (code == 0 || code == EPIPE) {
    return allFit ? kFine : kBadInput;
  }
  printFailure(fileName, code);
  return kFailed;
}

}  // namespace vcmtool
