#include "output/save_dialog.h"

#include "platform/forms/desktop.h"

using namespace Qt::StringLiterals;

namespace output {

platform::FileRequest saveRequest(const QString& folder) {
    return {.mode = platform::FileRequest::Mode::Save, .folder = folder, .title = u"Save As"_s};
}

platform::FileRequest textFileRequest(const QString& folder) {
    platform::FileRequest request = saveRequest(folder);
    request.filterText = u"Text File (*.txt)"_s;
    request.filterPattern = u"*.txt"_s;
    request.suffix = u"txt"_s;
    return request;
}

platform::FileRequest pdfFileRequest(const QString& folder) {
    platform::FileRequest request = saveRequest(folder);
    request.filterText = u"PDF File (*.pdf)"_s;
    request.filterPattern = u"*.pdf"_s;
    request.suffix = u"pdf"_s;
    return request;
}

void tellNoFileName(platform::Desktop& desktop) {
    desktop.notice(u"No filename was specified.  No file was saved."_s, u"No Filename"_s);
}

}  // namespace output
