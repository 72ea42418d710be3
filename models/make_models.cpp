// SPDX-License-Identifier: MIT
#include "sample_models.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

bool write(const std::filesystem::path& file, const std::string& text)
{
    std::ofstream out(file, std::ios::binary);
    out << text;
    out.close();
    if (out)
        return true;
    std::fprintf(stderr, "make-sample-models: cannot write %s\n", file.string().c_str());
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make-sample-models OUTDIR\n");
        return 2;
    }
    const std::filesystem::path folder(argv[1]);
    const bool done = write(folder / "robot.gltf", makeRobot().toText("")) &&
                      write(folder / "crane.gltf", makeCrane().toText("Flight"));
    return done ? 0 : 1;
}
