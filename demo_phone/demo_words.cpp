#include "demo_phone/demo_words.h"

namespace velk {

namespace {

using Word = std::string_view;

constexpr Word special_names[] = {
    "Dentist 🦷",
    "Taxi 🚕 (night)",
    "O'Malley's Workshop",
    "Anna-Lena von der Hohenheide zu Niederbergstetten-Oberwiesenthal, Freundin des Leuchtturms",
    "Voicemail",
    "حديقة الحيوان — Zoo — 动物园",
    "Room \"B\" <upstairs> & garden",
    "สำนักงานเขตที่มีชื่อยาวมากเพื่อทดสอบความกว้างของคอลัมน์",
    "ICE: Mum & Dad",
    "חנות הספרים של סבתא",
    "Pizza 🍕 Corner",
    "Zażółć Gęślą-Jaźń",
};

constexpr Demo_Band bands[] = {
    {"The Paper Lanterns",
     "First Light",
     {"Harbour at Six", "Silver Rain", "Thousand Windows", "Home by Tram"}},
    {"Nordlicht Quartett",
     "Zwischen den Jahren",
     {"Späte Straße", "Zweiter Schnee", "Kleiner Walzer", "Über die Brücke"}},
    {"Les Cerfs-volants",
     "Cartes postales",
     {"Petite lumière", "L'été des horloges", "Sans parapluie", "Rue des Érables"}},
    {"Полярная Сова", "Окна", {"Тихая река", "Первый снег", "Ночной трамвай", "Письмо"}},
    {"Κύματα", "Νησιά", {"Αργή θάλασσα", "Ο φάρος", "Καλοκαίρι", "Το τελευταίο πλοίο"}},
    {"نجوم الصحراء", "ليالي", {"ليلة القمر", "طريق النخيل", "رسالة", "مطر الصيف"}},
    {"שירת הגל", "חלון לים", {"אור ראשון", "שיר הגשם", "הדרך הביתה", "לילה טוב"}},
    {"竹林乐队", "春天的河", {"春天的河流", "茶馆", "月光小路", "再见夏天"}},
    {"夜汽車", "星図", {"青い空", "最後の駅", "雨のワルツ", "カモメ"}},
    {"달빛 정거장", "푸른 밤", {"푸른 바다", "막차", "편지", "첫눈"}},
    {"मानसून", "बरसात", {"नीला आकाश", "पहली बारिश", "नाव", "घर की ओर"}},
    {"ดาวเหนือ", "สายลม", {"เพลงของสายฝน", "แสงจันทร์", "ทางกลับบ้าน", "ตลาดเช้า"}},
    {"Ølstrøm", "Fjordlys", {"Blå time", "Håndskrift", "Sne på taget", "Færgen"}},
    {"Čaroděj & Synové",
     "Půlnoční kolotoč",
     {"Žluťoučký kůň", "Říční píseň", "Třetí sloka", "Šepot"}},
    {"Marigold Ferry",
     "Live at the Old Mill",
     {"Quiet Steps", "Kites 🪁", "Waltz No. 3", "Goodnight, Lighthouse"}},
};

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

constexpr Word app_names[] = {
    "Pocket Weather", "Night Compass", "Tiny Piano",      "Quick Ledger", "Paper Sudoku",
    "Blue Torch",     "Cosy Recipes",  "Kleiner Gärtner", "Умная карта",  "简单日历",
    "Petit Jardin",   "Open Radio",    "雪の温度計",      "버스 시간표",  "Mein Fahrplan",
    "Σημειώσεις",     "مفكرتي",        "לוח שנה",         "रसोई",         "นาฬิกาปลุก",
    "Tide Table",     "Chess by Mail", "Bird Songs",      "Step Counter", "Sketch Pad",
    "Coin Purse",     "Star Chart",    "Bread Timer",     "Word Ladder",  "Photo Frame 🖼️"};

}  // namespace

Demo_Words demo_special_names() {
    return special_names;
}

std::span<const Demo_Band> demo_bands() {
    return bands;
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

Demo_Words demo_app_names() {
    return app_names;
}

}  // namespace velk
