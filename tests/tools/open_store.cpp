// Opens the application's store exactly as the application does (Database::shared(), so under
// $XDG_DATA_HOME or ~/.local/share) and prints the number of categories. Tests run it as a child
// process to watch start-up succeed or end through the fatal path.
#include <cstdio>

#include "Data/Database.h"

int main() {
    std::printf("%zu\n", larkspan::Database::shared().fetchCategories().size());
    return 0;
}
