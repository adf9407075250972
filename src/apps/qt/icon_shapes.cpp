#include "qt/icon_shapes.h"

#include <array>
#include <vector>

#include "qt/strings.h"

namespace fabula::qt {
namespace {

constexpr std::string_view kPage = "M 6 3 L 14 3 L 19 8 L 19 21 L 6 21 Z M 14 3 L 14 8 L 19 8";
constexpr std::string_view kFolder = "M 3 6 L 9 6 L 11 8 L 21 8 L 21 19 L 3 19 Z";
constexpr std::string_view kOpenFolder =
    "M 3 19 L 3 6 L 9 6 L 11 8 L 19 8 L 19 11 M 3 19 L 6 11 L 22 11 L 19 19 Z";

constexpr std::array kShapes = {
    // The tree.
    IconShape{"book",
              "M 12 6 C 9 4 6 4 3 5 L 3 19 C 6 18 9 18 12 20 C 15 18 18 18 21 19 L 21 5 C 18 4 15 4 12 6 Z",
              "M 12 6 L 12 20"},
    IconShape{"settings", "M 4 7 L 13 7 M 17 7 L 20 7 M 4 17 L 7 17 M 11 17 L 20 17", "O 15 7 2 O 9 17 2"},
    IconShape{"map", "M 3 6 L 9 4 L 15 6 L 21 4 L 21 18 L 15 20 L 9 18 L 3 20 Z",
              "M 9 4 L 9 18 M 15 6 L 15 20"},
    IconShape{"object", "M 12 3 L 20 7.5 L 20 16.5 L 12 21 L 4 16.5 L 4 7.5 Z",
              "M 4 7.5 L 12 12 L 20 7.5 M 12 12 L 12 21"},
    IconShape{"words", "M 3 18 L 7 7 L 11 18 M 4.5 14 L 9.5 14", "O 17 15 3 M 20 11.5 L 20 18.5"},
    IconShape{"flag", "M 6 3 L 6 21", "M 6 4 C 9 2.5 12 6 18 4 L 18 13 C 12 15 9 11.5 6 13"},
    IconShape{"folder", kFolder, ""},
    IconShape{"folder-open", kOpenFolder, ""},
    IconShape{"text", "M 4 4 L 20 4 L 20 16 L 12 16 L 8 20 L 8 16 L 4 16 Z",
              "M 8 8.5 L 16 8.5 M 8 12 L 13 12"},
    IconShape{"process", "R 3 3 7 6 1.5 R 14 15 7 6 1.5",
              "M 10 6 L 17.5 6 L 17.5 14 M 15 11.5 L 17.5 14 L 20 11.5"},
    IconShape{"characters", "R 3 3 18 18 2", "M 8 17 L 12 7 L 16 17 M 9.5 13.5 L 14.5 13.5"},
    IconShape{"picture", "R 3 4 18 16 2", "O 8.5 9 1.5 M 4 18 L 10 13 L 13 15.5 L 17 11 L 20.5 15"},
    IconShape{"list", "M 9 6 L 20 6 M 9 12 L 20 12 M 9 18 L 20 18", "O 5 6 0.8 O 5 12 0.8 O 5 18 0.8"},
    IconShape{"gear",
              "O 12 12 6 M 12 3 L 12 6 M 12 18 L 12 21 M 3 12 L 6 12 M 18 12 L 21 12 M 5.6 5.6 L 7.8 7.8 "
              "M 16.2 16.2 L 18.4 18.4 M 5.6 18.4 L 7.8 16.2 M 16.2 7.8 L 18.4 5.6",
              "O 12 12 2"},
    // Files.
    IconShape{"new", kPage, "M 12.5 11 L 12.5 17 M 9.5 14 L 15.5 14"},
    IconShape{"open", kOpenFolder, ""},
    IconShape{"save-as", "M 4 4 L 17 4 L 20 7 L 20 20 L 4 20 Z M 8 4 L 8 9 L 15 9 L 15 4",
              "M 8 20 L 8 14 L 16 14 L 16 20"},
    IconShape{"close", "R 4 4 16 16 2", "M 9 9 L 15 15 M 15 9 L 9 15"},
    IconShape{"import", "M 4 14 L 4 20 L 20 20 L 20 14", "M 12 3 L 12 15 M 8 11 L 12 15 L 16 11"},
    IconShape{"export", "M 4 14 L 4 20 L 20 20 L 20 14", "M 12 15 L 12 3 M 8 7 L 12 3 L 16 7"},
    IconShape{"batch-import", "M 8 3 L 20 3 L 20 15 M 4 7 L 16 7 L 16 21 L 4 21 Z",
              "M 10 10 L 10 17 M 7 14 L 10 17 L 13 14"},
    IconShape{"batch-export", "M 8 3 L 20 3 L 20 15 M 4 7 L 16 7 L 16 21 L 4 21 Z",
              "M 10 18 L 10 11 M 7 14 L 10 11 L 13 14"},
    IconShape{"import-picture", "M 3 11 L 3 20 L 21 20 L 21 11 M 4 18 L 9 14 L 12 16 L 16 12 L 20.5 16",
              "M 12 2 L 12 10 M 9 7 L 12 10 L 15 7"},
    IconShape{"decompile", "R 4 4 7 7 1 R 13 13 7 7 1", "M 14 7 L 20 7 M 17 4 L 17 10 M 4 17 L 10 17"},
    IconShape{"package", "M 3 8 L 12 4 L 21 8 L 21 17 L 12 21 L 3 17 Z M 3 8 L 12 12 L 21 8",
              "M 7.5 6 L 16.5 10 L 16.5 14"},
    IconShape{"print", "M 7 9 L 7 3 L 17 3 L 17 9 M 7 17 L 4 17 L 4 9 L 20 9 L 20 17 L 17 17",
              "R 7 14 10 7 0.5"},
    IconShape{"preview", kPage, "O 12 14 3 M 14.2 16.2 L 16 18"},
    IconShape{"exit", "M 10 4 L 4 4 L 4 20 L 10 20", "M 9 12 L 20 12 M 16 8 L 20 12 L 16 16"},
    // Records.
    IconShape{"add", "O 12 12 9", "M 12 8 L 12 16 M 8 12 L 16 12"},
    IconShape{"add-before", "M 4 19 L 20 19 M 4 15 L 20 15", "M 12 3 L 12 11 M 8 7 L 16 7"},
    IconShape{"delete", "M 6 7 L 7 21 L 17 21 L 18 7 M 9 7 L 9 4 L 15 4 L 15 7 M 4 7 L 20 7",
              "M 10 11 L 10 17 M 14 11 L 14 17"},
    IconShape{"edit", "M 4 20 L 5 15 L 16 4 L 20 8 L 9 19 Z", "M 13 7 L 17 11"},
    IconShape{"load", kOpenFolder, "M 12 2 L 12 7 M 9.5 4.5 L 12 7 L 14.5 4.5"},
    IconShape{"save", "M 4 4 L 17 4 L 20 7 L 20 20 L 4 20 Z M 8 4 L 8 9 L 15 9 L 15 4",
              "M 8 20 L 8 14 L 16 14 L 16 20"},
    IconShape{"sort", "M 4 6 L 13 6 M 4 12 L 11 12 M 4 18 L 9 18",
              "M 18 5 L 18 19 M 15 16 L 18 19 L 21 16"},
    IconShape{"find", "O 10.5 10.5 6.5", "M 15.5 15.5 L 21 21"},
    IconShape{"undo", "M 8 19 L 14 19 C 22 19 22 9 14 9 L 4 9", "M 8 5 L 4 9 L 8 13"},
    IconShape{"redo", "M 16 19 L 10 19 C 2 19 2 9 10 9 L 20 9", "M 16 5 L 20 9 L 16 13"},
    IconShape{"find-next", "O 9 9 5.5 M 13 13 L 17 17", "M 20 10 L 20 20 M 17 17 L 20 20 L 23 17"},
    IconShape{"filter", "M 3 5 L 21 5 L 14 13 L 14 20 L 10 18 L 10 13 Z", ""},
    IconShape{"key", "O 8 15 4.5 M 11.2 11.8 L 20 3", "M 16.5 6.5 L 20 10 M 13.5 9.5 L 15.5 11.5"},
    // The adventure as a whole.
    IconShape{"trace", "M 4 5 L 12 5 M 4 19 L 12 19 M 4 12 L 9 12",
              "M 16 3 L 16 21 M 13 18 L 16 21 L 19 18"},
    IconShape{"run", "", "M 7 4 L 19 12 L 7 20 Z"},
    IconShape{"verify", "O 12 12 9", "M 8 12.5 L 11 15.5 L 16.5 9"},
    IconShape{"help", "O 12 12 9",
              "M 9.5 9.5 C 9.5 6 15 6 14.5 9.8 C 14.3 11.5 12 11.5 12 14 M 12 16.8 L 12 17.2"},
    IconShape{"info", "O 12 12 9", "M 12 11 L 12 17 M 12 7.3 L 12 7.7"},
    IconShape{"warning", "M 12 4 L 21.5 20 L 2.5 20 Z", "M 12 10 L 12 14.5 M 12 17 L 12 17.3"},
    IconShape{"back", "M 20 12 L 5 12", "M 11 5 L 4 12 L 11 19"},
    IconShape{"forward", "M 4 12 L 19 12", "M 13 5 L 20 12 L 13 19"},
    IconShape{"home", "M 5 11 L 5 20 L 19 20 L 19 11 M 3 12 L 12 4 L 21 12",
              "M 10 20 L 10 14 L 14 14 L 14 20"},
    IconShape{"sound", "M 3 9 L 7 9 L 12 5 L 12 19 L 7 15 L 3 15 Z",
              "M 15 9 C 16.5 10.5 16.5 13.5 15 15 M 17.5 6.5 C 20.5 9.5 20.5 14.5 17.5 17.5"},
    IconShape{"lamp", "M 9 17 L 15 17 M 10 20 L 14 20",
              "M 9 17 C 9 14 6 13 6 9 C 6 1 18 1 18 9 C 18 13 15 14 15 17"},
};

constexpr std::string_view kOpen = "-open";

const IconShape* Exactly(std::string_view name) {
    for (const IconShape& shape : kShapes) {
        if (shape.name == name) return &shape;
    }
    return nullptr;
}

/// How many numbers follow a letter.
int Numbers(QChar letter) {
    switch (letter.toLatin1()) {
        case 'M':
        case 'L':
            return 2;
        case 'O':
            return 3;
        case 'Q':
            return 4;
        case 'R':
            return 5;
        case 'C':
            return 6;
        default:
            return 0;
    }
}

void Draw(QPainterPath& path, QChar letter, const std::vector<double>& n) {
    switch (letter.toLatin1()) {
        case 'M':
            path.moveTo(n[0], n[1]);
            break;
        case 'L':
            path.lineTo(n[0], n[1]);
            break;
        case 'C':
            path.cubicTo(n[0], n[1], n[2], n[3], n[4], n[5]);
            break;
        case 'Q':
            path.quadTo(n[0], n[1], n[2], n[3]);
            break;
        case 'O':
            path.addEllipse(QPointF(n[0], n[1]), n[2], n[2]);
            break;
        case 'R':
            path.addRoundedRect(n[0], n[1], n[2], n[3], n[4], n[4]);
            break;
        default:
            path.closeSubpath();
            break;
    }
}

}  // namespace

const IconShape* FindIconShape(std::string_view name) {
    if (const IconShape* shape = Exactly(name)) return shape;
    if (name.ends_with(kOpen)) return Exactly(name.substr(0, name.size() - kOpen.size()));
    return nullptr;
}

QPainterPath PathOf(std::string_view shape) {
    QPainterPath path;
    const QStringList words = ToQt(shape).split(' ', Qt::SkipEmptyParts);
    for (qsizetype word = 0; word < words.size();) {
        const QChar letter = words[word++].front();
        std::vector<double> numbers;
        for (int count = Numbers(letter); count > 0; --count)
            numbers.push_back(words.value(word++).toDouble());
        Draw(path, letter, numbers);
    }
    return path;
}

}  // namespace fabula::qt
