#include "LargeScene.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace bench {

std::string sceneText(int nodes)
{
    std::string text = "#mrd 1.0\n\nGroup \"Parts\" {\n";
    for (int i = 0; i < nodes; ++i)
        text += "    Complexity {\n        value = 0." + std::to_string(1000 + i % 8999) + "\n    }\n";
    return text + "}\n";
}

std::string sceneFile(int nodes)
{
    const std::string name
        = (std::filesystem::temp_directory_path() / ("orvane-bench-" + std::to_string(nodes) + ".mrd")).string();
    std::ofstream file(name, std::ios::binary);
    file << sceneText(nodes);
    file.close();
    if (!file)
        std::abort();
    return name;
}

} // namespace bench
