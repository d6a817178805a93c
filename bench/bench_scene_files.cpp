// SPDX-License-Identifier: BSD-3-Clause
// Opening and saving scene files of many nodes and of many numbers, against Qt's JSON parser and
// writer alone, and the memory that opening takes beyond that of the parser.
//
// Usage: bench_scene_files [turns]
#include "KnCoordinates.h"
#include "KnGroup.h"
#include "KnMaterial.h"
#include "SceneReader.h"
#include "SceneWriter.h"
#include "Timing.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/wait.h>

#include <cstdio>
#include <random>
#include <unistd.h>

namespace {

constexpr int groupSize = 100;

/// Groups of materials, each with a name and three fields of its own.
KnNodePtr makeNodes(int count)
{
    auto* const root = new KnGroup;
    KnNodePtr scene(root);
    KnGroup* group = nullptr;
    for (int i = 1; i < count; ++i) {
        if (i % groupSize == 1) {
            group = new KnGroup;
            group->setName(KbName(("Room " + std::to_string(i / groupSize)).c_str()));
            root->addChild(group);
            continue;
        }
        auto* const material = new KnMaterial;
        material->setName(KbName(("Material " + std::to_string(i)).c_str()));
        const float shade = float(i % 997) / 997;
        material->diffuseColor.set1Value(0, KbColor(shade, 0.5F, 1 - shade));
        material->shininess.set1Value(0, shade);
        material->transparency.setValue(1 - shade);
        group->addChild(material);
    }
    return scene;
}

KnNodePtr makeNumbers(int count)
{
    auto* const coordinates = new KnCoordinates;
    KnNodePtr scene(coordinates);
    std::mt19937 random(1); // NOLINT: the same numbers each time
    std::uniform_real_distribution<float> number(-500.0F, 500.0F);
    std::vector<KbVec3f> points;
    points.reserve(static_cast<std::size_t>(count / 3));
    for (int i = 0; i < count / 3; ++i)
        points.emplace_back(number(random), number(random), number(random));
    coordinates->point.setValues(0, int(points.size()), points.data());
    return scene;
}

void require(bool condition, const QString& what)
{
    if (!condition)
        qFatal("%s", qPrintable(what));
}

KnNodePtr open(const QString& fileName)
{
    SceneReader reader;
    KnNodePtr root = reader.readFile(fileName);
    require(bool { root }, reader.errorText());
    return root;
}

QJsonDocument parse(const QString& fileName)
{
    QFile file(fileName);
    require(file.open(QIODevice::ReadOnly), file.errorString());
    QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    require(!document.isNull(), fileName);
    return document;
}

void save(const QJsonDocument& document, const QString& fileName)
{
    QSaveFile file(fileName);
    require(file.open(QIODevice::WriteOnly) && file.write(document.toJson()) > 0 && file.commit(),
        file.errorString());
}

/// The most memory, in bytes, that a process which does nothing but this has had at once.
template <class Run>
double peak(const Run& run)
{
    const pid_t child = fork();
    if (child == 0) {
        run();
        _exit(0);
    }
    int status = 0;
    rusage usage {};
    require(wait4(child, &status, 0, &usage) == child && status == 0,
        QStringLiteral("a measuring process failed"));
    return double(usage.ru_maxrss) * 1024;
}

void compare(const KnNodePtr& scene, int count, const char* unit, const char* each, int turns)
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("scene.json"));
    const QString theirFile = folder.filePath(QStringLiteral("rival.json"));
    SceneWriter writer;
    require(writer.writeFile(*scene.get(), fileName), writer.errorText());
    const double bytes = double(QFile(fileName).size());

    printSize(count, unit);
    std::printf("  a file of %.1f MB\n", bytes / 1e6);
    const double beyond = peak([&] { open(fileName); }) - peak([&] { parse(fileName); });
    // What was opened is let go outside of the time, for both.
    KnNodePtr opened;
    QJsonDocument parsed;
    printTimes((std::string("open ") + unit).c_str(),
        compareInTurns(
            turns, [&] { opened = open(fileName); }, [&] { parsed = parse(fileName); },
            [&] {
                opened = KnNodePtr();
                parsed = QJsonDocument();
            }));
    const QJsonDocument document = parse(fileName);
    printTimes((std::string("save ") + unit).c_str(),
        compareInTurns(
            turns, [&] { require(writer.writeFile(*scene.get(), fileName), writer.errorText()); },
            [&] { save(document, theirFile); }));
    const double before = heapInUse();
    const KnNodePtr kept = open(fileName);
    std::printf(
        "  bytes %s: opening, beyond the parser, at most %.0f; the scene %.0f; the file %.0f\n",
        each, beyond / count, (heapInUse() - before) / count, bytes / count);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const int turns = numberArgument(argc, argv, 1, 9);
    for (const int nodes : { 1'000, 10'000, 100'000 })
        compare(makeNodes(nodes), nodes, "nodes", "a node", turns);
    // The last one makes a file of 36 MB.
    for (const int numbers : { 34'200, 342'000, 3'420'000 })
        compare(makeNumbers(numbers), numbers, "numbers", "a number", turns);
    return 0;
}
