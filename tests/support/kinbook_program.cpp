#include "tests/support/kinbook_program.h"

#include "app/kinbook.h"
#include "platform/forms/desktop.h"

namespace support {

namespace {

class KinbookProgram : public Program {
public:
    explicit KinbookProgram(const QString& folder) : kinbook_(folder) {}

    void main() override { kinbook_.main(); }
    [[nodiscard]] platform::Desktop& desktop() override { return kinbook_.desktop(); }
    [[nodiscard]] const session::Session* session() override { return &kinbook_.session(); }

private:
    app::Kinbook kinbook_;
};

}  // namespace

MakeProgram kinbookProgram(const QString& folder) {
    return [folder] { return std::make_unique<KinbookProgram>(folder); };
}

MakeProgram hurriedKinbook(const QString& folder) {
    return [folder] {
        auto program = std::make_unique<KinbookProgram>(folder);
        program->desktop().skipWaits();
        return program;
    };
}

}  // namespace support
