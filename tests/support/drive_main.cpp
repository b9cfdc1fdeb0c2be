#include "tests/support/drive.h"
#include "tests/support/kinbook_program.h"

int main(int count, char** words) {
    return support::drive(count, words, support::kinbookProgram);
}
