#include "files/Sizes.h"

#include <QString>
#include <cstdio>

// Measures a folder as a backup does before it begins, as a program of its own beside du.
int main(int argc, char **argv)
{
    if (argc != 2) return 64;
    std::printf("%llu\n", quillorentLibrary::calculateSize(QString::fromUtf8(argv[1])));
    return 0;
}
