#include "demo_phone/demo_words.h"

namespace velk {

namespace {

using Word = std::string_view;

constexpr Word special_names[] = {
    "Dentist 🦷",
    "Taxi 🚕 (night)",
    "O'Malley's Workshop",
    "Anna-Lena von der Hohenheide zu Niederbergstetten-Oberwiesenthal, Sprecherin des Vereins "
    "der Freunde des alten Leuchtturms",
    "Voicemail",
    "حديقة الحيوان — Zoo — 动物园",
    "Room \"B\" <upstairs> & garden",
    "สำนักงานเขตที่มีชื่อยาวมากเพื่อทดสอบความกว้างของคอลัมน์",
    "ICE: Mum & Dad",
    "חנות הספרים של סבתא",
    "Pizza 🍕 Corner",
    "Zażółć Gęślą-Jaźń",
};

constexpr Word artists[] = {"The Paper Lanterns",
                            "Nordlicht Quartett",
                            "Les Cerfs-volants",
                            "Полярная Сова",
                            "Κύματα",
                            "نجوم الصحراء",
                            "שירת הגל",
                            "竹林乐队",
                            "夜汽車",
                            "달빛 정거장",
                            "मानसून",
                            "ดาวเหนือ",
                            "Ølstrøm",
                            "Čaroděj & Synové",
                            "Marigold Ferry"};
constexpr Word song_starts[] = {"Morning", "Silver", "Zweite",  "Petite", "Тихая",
                                "Αργή",    "ليلة",   "אור",     "春天的", "青い",
                                "푸른",    "नीला",   "เพลงของ", "Quiet",  "Thousand"};
constexpr Word song_ends[] = {"Harbour", "Rain",    "Straße", "Lumière",    "река",       "θάλασσα",
                              "القمر",   "הים",     "河流",   "空",         "바다",       "आकाश",
                              "สายฝน",   "Windows", "Steps",  "Kites 🪁", "Waltz No. 3"};
constexpr Word albums[] = {"First Light", "Zwischen den Jahren", "Окна",
                           "星図",        "Postcards",           "Live at the Old Mill"};

constexpr Word photo_subjects[] = {"beach",  "Geburtstag", "forêt",  "дача",   "ηλιοβασίλεμα",
                                   "حديقة",  "חוף",        "山顶",   "桜",     "가을",
                                   "त्योहार", "ตลาดน้ำ",     "kitten", "market", "snow ❄️"};

constexpr Word video_titles[] = {"First steps", "Kite festival", "Oma erzählt", "Le carnaval",
                                 "Новый год",   "运动会",        "花火",        "Lighthouse tour"};

constexpr Word book_titles[] = {"A Short History of Umbrellas",
                                "Der Leuchtturmwärter",
                                "Le Jardin des horloges",
                                "Письма с севера",
                                "Το νησί των ανέμων",
                                "حكايات النخيل",
                                "ספר הגשם",
                                "茶馆旧事",
                                "雨の図書館",
                                "별을 세는 밤",
                                "मिट्टी की खुशबू",
                                "Cooking for Two on a Boat"};

constexpr Word app_adjectives[] = {"Pocket", "Night",  "Tiny",  "Quick", "Paper", "Blue",
                                   "Cosy",   "Kleine", "Умный", "简单",  "Petit", "Open"};
constexpr Word app_nouns[] = {"Weather", "Compass", "Piano", "Ledger", "Sudoku", "Recipes",
                              "Torch",   "Карты",   "日历",  "Runner", "Radio",  "Garden"};

}  // namespace

Demo_Words demo_special_names() {
    return special_names;
}

Demo_Words demo_artists() {
    return artists;
}

Demo_Words demo_song_starts() {
    return song_starts;
}

Demo_Words demo_song_ends() {
    return song_ends;
}

Demo_Words demo_albums() {
    return albums;
}

Demo_Words demo_photo_subjects() {
    return photo_subjects;
}

Demo_Words demo_video_titles() {
    return video_titles;
}

Demo_Words demo_book_titles() {
    return book_titles;
}

Demo_Words demo_app_adjectives() {
    return app_adjectives;
}

Demo_Words demo_app_nouns() {
    return app_nouns;
}

}  // namespace velk
