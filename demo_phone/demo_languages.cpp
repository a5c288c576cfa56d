#include "demo_phone/demo_words.h"

namespace velk {

namespace {

using Word = std::string_view;

constexpr Word english_given[] = {"Abigail", "Bernard", "Clarissa", "Duncan", "Edith",  "Franklin",
                                  "Georgia", "Hubert",  "Imogen",   "Jasper", "Keziah", "Leopold"};
constexpr Word english_family[] = {"Ashdown", "Birkwell", "Coldbrook", "Dunmere",   "Eastgrove",
                                   "Fernsby", "Greyfold", "Hartwick",  "Inglemoor", "Larkhill"};
constexpr Word english_greetings[] = {"Hi!", "Hello,", "Good morning!", "Hey you,"};
constexpr Word english_sentences[] = {"the train is ten minutes late, I'll wait at the bridge.",
                                      "can you bring the blue folder tomorrow?",
                                      "we moved dinner to half past seven.",
                                      "the kids loved the kite. Thank you so much!",
                                      "I left the key under the \"third\" flower pot.",
                                      "your parcel is with the neighbours, second floor.",
                                      "shall we try the new climbing hall on Sunday?",
                                      "the dentist asks if Thursday at 9:15 suits you.",
                                      "shopping list:\n- milk\n- six eggs\n- bread"};
constexpr Word english_closings[] = {"See you!", "Talk later.", "", "Love, A."};

constexpr Word german_given[] = {"Änne", "Björn", "Cäcilie", "Dörte", "Frauke",
                                 "Götz", "Jörg",  "Käthe",   "Lüder", "Sönke"};
constexpr Word german_family[] = {"Abendroth",  "Brückenmüller", "Großkreutz", "Höpfner", "Küßner",
                                  "Lindenthal", "Mühlstein",     "Rößler",     "Söhnlein"};
constexpr Word german_greetings[] = {"Moin,", "Grüß dich!", "Hallo,"};
constexpr Word german_sentences[] = {"der Zug fällt aus, ich nehme das Fahrrad.",
                                     "bringst du bitte Äpfel und Käse mit?",
                                     "der Schlüssel liegt beim Bäcker an der Ecke.",
                                     "heute Abend wird's später, wartet nicht mit dem Essen.",
                                     "wie heißt noch mal das Café am Fluß?",
                                     "die Prüfung ist bestanden!",
                                     "treffen wir uns um 18 Uhr vor dem Kino?"};
constexpr Word german_closings[] = {"Bis gleich!", "Liebe Grüße", "", "Tschüß"};

constexpr Word french_given[] = {"Aurélie", "Benoît", "Cédric", "Édith", "François",
                                 "Gaëlle",  "Hélène", "Joël",   "Maïté", "Zoé"};
constexpr Word french_family[] = {"Beauchêne", "Châtaigner", "d'Hérouval", "Fontbrune",
                                  "Lacôte",    "Montségur",  "Noyérac",    "Prévenchères"};
constexpr Word french_greetings[] = {"Coucou,", "Bonjour,", "Salut !"};
constexpr Word french_sentences[] = {
    "le dîner est décalé à vingt heures.",         "j'ai oublié mon écharpe chez toi.",
    "tu peux prendre une baguette en passant ?",   "la réunion est annulée, ouf !",
    "on se retrouve au marché près de l'église ?", "les photos de la fête sont superbes.",
    "le chat a encore dormi dans ta valise."};
constexpr Word french_closings[] = {"Bises", "À bientôt !", "", "Bonne journée"};

constexpr Word russian_given[] = {"Аглая", "Борис", "Варвара", "Глеб", "Дарина",
                                  "Егор",  "Злата", "Илья",    "Кира", "Тимофей"};
constexpr Word russian_family[] = {"Белокрылых", "Гречко", "Долгих",  "Журавель", "Коваль",
                                   "Мельник",    "Седых",  "Скрипка", "Ткач"};
constexpr Word russian_greetings[] = {"Привет!", "Здравствуйте,", "Доброе утро!"};
constexpr Word russian_sentences[] = {
    "поезд опаздывает на десять минут.",       "купи, пожалуйста, хлеб и молоко.",
    "встречаемся у фонтана в шесть.",          "спасибо за поздравление, было очень приятно!",
    "ключи лежат у соседки на третьем этаже.", "завтра обещают снег, одевайся теплее.",
    "отправила тебе рецепт пирога с вишней."};
constexpr Word russian_closings[] = {"До встречи!", "Обнимаю", "", "Целую"};

constexpr Word greek_given[] = {"Άννα",   "Βασίλης", "Δανάη",   "Ελένη", "Θάλεια",
                                "Κώστας", "Μυρτώ",   "Νικήτας", "Σπύρος"};
constexpr Word greek_family[] = {"Αμπελιώτη", "Βουνό",    "Καραβά", "Λιμανάκη",
                                 "Μελισσά",   "Πλατανιά", "Ροδίτη", "Φεγγαρά"};
constexpr Word greek_greetings[] = {"Γεια σου!", "Καλημέρα,", "Καλησπέρα,"};
constexpr Word greek_sentences[] = {"το πλοίο φεύγει στις οκτώ.",
                                    "φέρε μαζί σου το μπλε βιβλίο.",
                                    "το φαγητό είναι έτοιμο, ελάτε!",
                                    "χάθηκα πάλι, πού είναι η πλατεία;",
                                    "σε περιμένουμε την Κυριακή στο χωριό.",
                                    "ευχαριστώ για τα λουλούδια."};
constexpr Word greek_closings[] = {"Φιλιά", "Τα λέμε!", ""};

constexpr Word arabic_given[] = {"أمل",  "بسام", "جميلة", "خليل", "دانة",
                                 "رشيد", "زهرة", "سليم",  "فرح"};
constexpr Word arabic_family[] = {"البستاني", "الحداد", "الخياط", "الزيتوني",
                                  "العطار",   "القمري", "النجار", "الورد"};
constexpr Word arabic_greetings[] = {"السلام عليكم،", "مرحبا!", "صباح الخير،"};
constexpr Word arabic_sentences[] = {
    "سأتأخر عشر دقائق عن الموعد.",     "هل يمكنك شراء الخبز والحليب؟",
    "الاجتماع غدا في الساعة التاسعة.", "شكرا على الهدية الجميلة.",
    "وصل القطار إلى المحطة رقم 4.",    "نلتقي في المقهى قرب الحديقة."};
constexpr Word arabic_closings[] = {"إلى اللقاء", "تحياتي", ""};

constexpr Word hebrew_given[] = {"אביגיל", "ברק",  "דליה", "הלל", "זהבה",
                                 "יונתן",  "כרמל", "מורן", "תמר"};
constexpr Word hebrew_family[] = {"אלמוג", "ברקאי", "גלעדי",  "דקל",
                                  "הרדוף", "ורדי",  "חרמוני", "סלעי"};
constexpr Word hebrew_greetings[] = {"שלום,", "היי!", "בוקר טוב,"};
constexpr Word hebrew_sentences[] = {"הרכבת מאחרת בעשר דקות.",   "תוכלי להביא את התיק הכחול מחר?",
                                     "ארוחת הערב נדחתה לשמונה.", "המפתח אצל השכנים בקומה 3.",
                                     "תודה רבה על העזרה!",       "ניפגש ליד המזרקה?"};
constexpr Word hebrew_closings[] = {"להתראות", "נשיקות", ""};

constexpr Word chinese_given[] = {"晓雨", "文静", "志远", "雅琴", "海燕",
                                  "思源", "春生", "月华", "青松", "秋实"};
constexpr Word chinese_family[] = {"林", "陈", "黄", "周", "吴", "徐", "孙", "朱", "胡", "欧阳"};
constexpr Word chinese_greetings[] = {"你好！", "早上好，", "嗨，"};
constexpr Word chinese_sentences[] = {"火车晚点十分钟，我在桥边等你。",
                                      "明天请把蓝色的文件夹带来。",
                                      "晚饭改到七点半了。",
                                      "谢谢你的礼物，孩子们非常喜欢！",
                                      "钥匙在三楼邻居那里。",
                                      "周末一起去爬山好吗？",
                                      "下雨了，记得带伞。"};
constexpr Word chinese_closings[] = {"回头见！", "保重。", ""};

constexpr Word japanese_given[] = {"葵",   "大地",   "花江", "一葉",  "桃香",
                                   "直人", "陽菜子", "実",   "ゆきの"};
constexpr Word japanese_family[] = {"青柳", "石倉", "上条", "江崎",  "小野寺",
                                    "北原", "杉江", "滝田", "長谷部"};
constexpr Word japanese_greetings[] = {"おはよう！", "こんにちは。", "お疲れさまです。"};
constexpr Word japanese_sentences[] = {"電車が十分遅れています。",
                                       "明日、青いファイルを持ってきてください。",
                                       "夕食は七時半に変更になりました。",
                                       "プレゼントをありがとう、とても嬉しいです。",
                                       "駅前のカフェで待っています。",
                                       "カタログは机の上に置きました。",
                                       "傘を忘れないでね。"};
constexpr Word japanese_closings[] = {"またね。", "よろしくお願いします。", ""};

constexpr Word korean_given[] = {"나래", "다온", "라온", "보람", "새벽",
                                 "아름", "한결", "하늘", "푸름"};
constexpr Word korean_family[] = {"강", "김", "남궁", "박", "서", "윤", "정", "최", "황"};
constexpr Word korean_greetings[] = {"안녕!", "안녕하세요,", "좋은 아침!"};
constexpr Word korean_sentences[] = {
    "기차가 십 분 늦어요.", "내일 파란 서류철을 가져와 주세요.", "저녁 약속은 일곱 시 반이야.",
    "선물 정말 고마워요!",  "열쇠는 이웃집에 맡겼어요.",         "일요일에 같이 등산 갈래?"};
constexpr Word korean_closings[] = {"이따 봐!", "고마워요.", ""};

constexpr Word hindi_given[] = {"आशा",  "गिरिजा", "चंदन", "दीपक", "नीला",
                                "बसंती", "माधवी",  "सुरेश", "हरीश"};
constexpr Word hindi_family[] = {"अवस्थी", "चतुर्वेदी", "जोशी", "त्रिवेदी",
                                 "नेगी",   "भंडारी",  "रावत", "वाजपेयी"};
constexpr Word hindi_greetings[] = {"नमस्ते!", "सुप्रभात,", "अरे सुनो,"};
constexpr Word hindi_sentences[] = {"ट्रेन दस मिनट देर से आएगी।", "कल नीली फ़ाइल साथ ले आना।",
                                    "खाना साढ़े सात बजे है।",     "उपहार के लिए बहुत धन्यवाद!",
                                    "चाबी पड़ोसी के पास है।",    "रविवार को पहाड़ पर चलें?"};
constexpr Word hindi_closings[] = {"फिर मिलेंगे!", "ध्यान रखना।", ""};

constexpr Word thai_given[] = {"กานดา", "ชัยวัฒน์", "ดวงใจ", "ธนา", "นภา",
                               "ประภา", "มาลี",   "วิชัย",   "อรุณ"};
constexpr Word thai_family[] = {"แก้วใส", "จันทร์เพ็ญ", "ใจดี",    "ทองคำ",
                                "บุญมา",  "รุ่งเรือง",  "แสงดาว", "สุขสันต์"};
constexpr Word thai_greetings[] = {"สวัสดีค่ะ", "หวัดดี!", "อรุณสวัสดิ์"};
constexpr Word thai_sentences[] = {"รถไฟมาช้าสิบนาที",           "พรุ่งนี้ช่วยเอาแฟ้มสีน้ำเงินมาด้วยนะ",
                                   "เลื่อนอาหารเย็นเป็นหนึ่งทุ่มครึ่ง", "ขอบคุณสำหรับของขวัญมากๆ",
                                   "กุญแจอยู่กับเพื่อนบ้านชั้นสาม",    "วันอาทิตย์ไปตลาดน้ำกันไหม"};
constexpr Word thai_closings[] = {"แล้วเจอกัน", "ดูแลตัวเองด้วย", ""};

constexpr Word emoji_given[] = {"Mia 🌻", "Tom 🚲",      "Oma ❤️", "Nico 🎸",
                                "Pia 🐢", "Bo 🏔️", "Uli ☕"};
constexpr Word emoji_family[] = {"(club)",  "(work)", "(choir)",
                                 "2️⃣", "🏠",      "👩‍👩‍👧"};
constexpr Word emoji_greetings[] = {"👋", "🌞 Morning!", "🎉🎉"};
constexpr Word emoji_sentences[] = {"🍕 or 🍜 tonight?",
                                    "we won!!! 🏆⚽",
                                    "👍 done",
                                    "rain again 🌧️☔ take the bus",
                                    "🎂 at four, don't tell her 🤫",
                                    "family photo is online 👨‍👩‍👧‍👦📷"};
constexpr Word emoji_closings[] = {"😘", "🙈", ""};

#define VELK_WORDS(name) name##_given, name##_family
#define VELK_TEXTS(name) name##_greetings, name##_sentences, name##_closings

constexpr Demo_Language all_languages[] = {
    {"+44 7700 9", VELK_WORDS(english), false, " ", VELK_TEXTS(english)},
    {"+49 151 23", VELK_WORDS(german), false, " ", VELK_TEXTS(german)},
    {"+33 6 39 98 ", VELK_WORDS(french), false, " ", VELK_TEXTS(french)},
    {"+7 900 555-", VELK_WORDS(russian), false, " ", VELK_TEXTS(russian)},
    {"+30 690 00", VELK_WORDS(greek), false, " ", VELK_TEXTS(greek)},
    {"+971 50 55", VELK_WORDS(arabic), false, " ", VELK_TEXTS(arabic)},
    {"+972 55 55", VELK_WORDS(hebrew), false, " ", VELK_TEXTS(hebrew)},
    {"+86 138 0000 ", VELK_WORDS(chinese), true, "", VELK_TEXTS(chinese)},
    {"+81 90 000 ", VELK_WORDS(japanese), true, " ", VELK_TEXTS(japanese)},
    {"+82 10 000 ", VELK_WORDS(korean), true, "", VELK_TEXTS(korean)},
    {"+91 90000 ", VELK_WORDS(hindi), false, " ", VELK_TEXTS(hindi)},
    {"+66 80 00", VELK_WORDS(thai), false, " ", VELK_TEXTS(thai)},
    {"0151 77", VELK_WORDS(emoji), false, " ", VELK_TEXTS(emoji)},
};

#undef VELK_WORDS
#undef VELK_TEXTS

}  // namespace

std::span<const Demo_Language> demo_languages() {
    return all_languages;
}

}  // namespace velk
