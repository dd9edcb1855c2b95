// Saves settings over and over until it is killed: all values of one save are the same number.
#include <string>
#include <vector>

#include "backends/sdl/settings/SettingsFile.h"

int main() {
    prismfall::SettingsFile settings(prismfall::SettingsFile::UsersFile());
    for (int number = 0;; ++number) {
        const std::string failure = settings.Change([&](const prismfall::SettingsReader&) {
            std::vector<prismfall::SettingValue> values;
            for (int i = 1; i <= 79; ++i)
                values.push_back({"Saved", "Value" + std::to_string(i), std::to_string(number)});
            return values;
        });
        if (!failure.empty()) return 1;
    }
}
