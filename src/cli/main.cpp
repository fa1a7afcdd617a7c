#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    std::fprintf(stderr, "uso: vrt-cli COMANDO [OPÇÕES]\n");
    return 2;
}
