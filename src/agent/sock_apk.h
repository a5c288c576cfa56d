// The client of the agent, the small application that answers for the phone.
//
// Every request is one short-lived connection to the local end of the tool's port forward: connect,
// send, read the reply, close. There is no login, no time limit and no error value: an agent that
// cannot be reached gives an empty reply, a silent one blocks the calling thread until it answers
// or the thread's Interruptor is cancelled.
//
// An agent that speaks the second wire (wire_choice.h) is asked for lists and changes there; what
// goes in and comes out here is the same, only whole. Single values always take the first wire.
//
// Replies are byte strings that may hold NUL bytes; texts inside them are UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velk {

struct Edit_Result;

/// Made afresh for each job; one thread at a time. Holds the command codes, and why the last
/// request was refused.
class sock_apk {
  public:
    /// Why the last list came short or the last change was not done: a sentence for a person, of
    /// one line. Empty when all went well, and always on the first wire, which tells no reasons.
    const std::string& refusal() const { return refusal_; }

    /// Values as the agent sent them. ID and name carry bytes behind their first NUL that belong to
    /// the next fields: read them as C strings (until_nul).
    struct CONTACT {
        int index = 0;  // not set by the list
        std::string ID;
        std::string name;
        std::string tel;
    };

    /// Texts as the agent sent them, byte for byte; the last four are decimal numbers.
    struct SMS_RECORD {
        std::string TEL;  // the other party's number
        std::string TEXT;
        std::string DATE;
        std::string TYPE;
        std::string ID;
        std::string threadID;
        std::string read;
    };

    // The libraries' records: texts as the agent sent them, numbers as decimal text, sizes and
    // durations as get_size() and get_time() show them.

    struct APP_RECORD {
        std::string size;
        std::string second;  // shown nowhere, as the sixth
        std::string name;
        std::string package;
        std::string version;
        std::string sixth;
    };

    struct MUSIC_RECORD {
        std::string id;
        std::string zhuanji;  // the album
        std::string singer;
        std::string path;  // on the phone
        std::string timer;
        std::string size;
        std::string is_ring;  // not 0 for a ring tone
    };

    struct VIDEO_RECORD {
        std::string id;
        std::string file_path;
        std::string timer;
        std::string size;
    };

    struct PHOTO_RECORD {
        std::string id;
        std::string file_path;
        std::string size;
    };

    /// A book has no id.
    struct BOOK_RECORD {
        std::string file_path;
        std::string size;
        std::string location;
    };

    // --- single requests (requests.cpp) -------------------------------------------------------
    // A code is the decimal text of a request's number, of which the low 7 bits are sent.

    /// The short value that the agent answers with: a count, a size in bytes, a name.
    std::string send_command_to_apk_for_get_something(const char* code);
    /// The last byte of the reply as signed decimal text; empty without a reply.
    std::string get_battery_from_apk(const char* code);
    /// Sends a whole command and gives the reply's bytes, 1024 of them at most.
    std::string send_command(const std::string& command);
    std::string send_command1(const std::string& command);

    // --- contacts (contacts.cpp) --------------------------------------------------------------

    /// Appends the phone's contacts in the agent's order. The result is what was left unparsed.
    /// `too_long` (when given) tells whether the reply was longer than the protocol carries, in
    /// which case none of its contacts are there.
    std::string send_command_get_contatcts_array(const char* code, std::vector<CONTACT>& contacts,
                                                 bool* too_long = nullptr);
    /// The same exchange; the contacts are only traced.
    std::string send_command_get_contatcts(const char* code);
    /// Appends the contacts of one chunk, which counts only when it is one whole reply.
    static void get_contacts_data_to_stru_array(const std::string& chunk, int length,
                                                int first_chunk, std::vector<CONTACT>& contacts);
    /// One contact out of its record: three texts of L1, L2 and L3 bytes, each behind its length.
    static CONTACT one_contact(const std::string& record, int L1, int L2, int L3, int length);

    /// The raw reply, for get_contact_id(); empty when the agent cannot be reached.
    std::string add_one_contact(const char* name, const char* tel);
    /// The id that the phone gave the added contact; empty when it gave none.
    static std::string get_contact_id(const std::string& add_reply);
    // True when the agent answered at all.
    bool modify_one_contact(const char* name, const char* tel, const char* ID);
    bool del_one_contact(const char* ID);

    // The requests' bytes. The one-byte lengths in them wrap at 128.
    static std::string get_add_contact_command(const char* name, const char* tel);
    static std::string get_modify_contact_command(const char* name, const char* tel,
                                                  const char* ID);
    static std::string get_del_contact_command(const char* ID);

    // --- messages (sms.cpp) --------------------------------------------------------------------

    /// Appends the phone's messages in the agent's order. The result is the last chunk's bytes, of
    /// which nobody makes use.
    std::string send_command_get_sms(const char* code, std::vector<SMS_RECORD>& messages);
    /// Appends the whole records from `start` on and gives what is left behind them: a record that
    /// is not whole yet, or the bare header that ends the list. `first` and `second_offset` have no
    /// effect.
    static std::string get_sms_data_to_stru_array(const std::string& data, int length, int first,
                                                  std::vector<SMS_RECORD>& messages, int start,
                                                  int second_offset);
    /// One message out of its record: three texts of L1, L2 and L3 bytes, each behind its length,
    /// and four numbers.
    static SMS_RECORD one_sms(const std::string& record, int L1, int L2, int L3, int length);

    // True when the agent answered at all. Each is for phones of another kind, which cannot be
    // told apart: all three are sent, in this order, and the last one's result counts. The second
    // wire knows one kind of phone: there the last one deletes, and the others send nothing.
    bool del_one_sms(const char* ID, const char* threadID);
    bool del_one_sms_for_NoS4(const char* ID, const char* threadID);
    bool del_one_sms_for_ver2(const char* ID, const char* threadID);
    /// The raw reply; empty when the agent cannot be reached.
    std::string send_sms(const char* text, const char* number);

    // The requests' bytes. Of the two numbers of a delete only the low byte goes out; the one-byte
    // lengths of a message to send wrap at 128.
    static std::string get_del_sms_command(const char* ID, const char* threadID, int variant);
    static std::string get_send_sms_command(const char* text, const char* number);

    // --- applications, music, videos, photos, books (libraries.cpp) ----------------------------

    // Append what the phone has in the agent's order; a reply that breaks off gives the records in
    // front of the break. The result is always empty.
    std::string send_command_get_app_list(const char* code, std::vector<APP_RECORD>& apps);
    std::string send_command_get_music(const char* code, std::vector<MUSIC_RECORD>& music);
    std::string send_command_get_video(const char* code, std::vector<VIDEO_RECORD>& videos);
    std::string send_command_get_photo(const char* code, std::vector<PHOTO_RECORD>& photos);
    std::string send_command_get_book(const char* code, std::vector<BOOK_RECORD>& books);

    // Append the whole records from `start` on and give what is left behind them, the begin of one
    // more. A last text that is cut is taken short and leaves nothing. `first` has no effect.
    static std::string get_app_list(const std::string& data, int length, int first,
                                    std::vector<APP_RECORD>& apps, int start);
    static std::string get_music_list(const std::string& data, int length, int first,
                                      std::vector<MUSIC_RECORD>& music, int start);
    static std::string get_video_list(const std::string& data, int length, int first,
                                      std::vector<VIDEO_RECORD>& videos, int start);
    static std::string get_photo_list(const std::string& data, int length, int first,
                                      std::vector<PHOTO_RECORD>& photos, int start);
    static std::string get_book_list(const std::string& data, int length, int first,
                                     std::vector<BOOK_RECORD>& books, int start);

    // --- commands (commands.cpp) --------------------------------------------------------------
    // True when the agent answered at all. The one-byte lengths in the requests wrap at 128.

    /// The six bytes of a command without arguments.
    static std::string get_command(int code);
    bool do_command(int code);

    /// Tells the phone's catalogue of a file that was copied there, whatever its kind.
    bool add_one_for_music_image_video_book(int code, const char* path);
    /// Takes an entry out of it.
    bool del_one_for_music_image_video(int code, const char* id, const char* path);
    bool del_one_for_book(int code, const char* path);
    static std::string add_command_for_music_image_video_book(int code, const char* path);
    /// On the wire the path comes first.
    static std::string del_command_for_music_image_video(int code, const char* id,
                                                         const char* path);
    static std::string del_command_for_book(int code, const char* path);

    int getCommand_DelMusicFile() const { return del_music_file_; }
    int getCommand_DelVideoFile() const { return del_video_file_; }
    int getCommand_DelBookFile() const { return del_book_file_; }
    int getCommand_DelPhotoFile() const { return del_photo_file_; }
    int getCommand_AddMusicFile() const { return add_music_file_; }
    int getCommand_AddVideoFile() const { return add_video_file_; }
    int getCommand_AddPhotoFile() const { return add_photo_file_; }
    int getCommand_AddBookFile() const { return add_book_file_; }
    int getCommand_DelAllContacts() const { return del_all_contacts_; }
    int getCommand_DelAllSMS() const { return del_all_sms_; }

    // --- numbers and texts of the wire (codec.cpp) --------------------------------------------
    // Decimal texts are read as far as they are numbers (else 0) and wrapped to 32 bits.

    /// The low 7 bits: codes and one-byte lengths above 127 wrap.
    static int toascii(int value) { return value & 0x7F; }
    /// A reply's length field, big-endian, of which only the low 16 bits count. Missing bytes
    /// count as 0.
    static int for_java_char4_to_int(std::string_view four_bytes);
    /// A big-endian field of two bytes, unsigned. Missing bytes count as 0.
    static int for_java_char2_to_int(std::string_view two_bytes);
    /// Four bytes, least significant first.
    static std::string for_java_int(const char* decimal);
    /// Four bytes: three zeros and the number's low byte.
    static std::string for_int_to_java_char4(const char* decimal);
    /// A size of the summary: "1.50GB". "0B" up to 1024 bytes, empty below 0.
    static std::string format_size(std::int32_t bytes);
    /// A size of a list: "1.50 GB".
    static std::string get_size(const char* decimal);
    /// A duration of so many milliseconds: "01:02:05".
    static std::string get_time(const char* decimal);

    // Two routines that nothing calls.
    static int get_sum(int a, int b) { return a + b; }
    static std::string get_your_name(const char* name);

  private:
    /// Traces and sends a command; true when anything came back.
    bool is_answered(const std::string& command);
    /// Keeps the reason; true when the change was done.
    bool is_done(Edit_Result result);

    std::string refusal_;

    std::int32_t del_music_file_ = 80;
    std::int32_t del_video_file_ = 82;
    std::int32_t del_book_file_ = 57;
    std::int32_t del_photo_file_ = 84;
    std::int32_t add_music_file_ = 108;
    std::int32_t add_video_file_ = 109;
    std::int32_t add_photo_file_ = 110;
    std::int32_t add_book_file_ = 113;
    std::int32_t del_all_contacts_ = 120;
    std::int32_t del_all_sms_ = 22;
};

}  // namespace velk
