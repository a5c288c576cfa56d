// The loads that follow a connection by themselves.
#pragma once

#include <vector>

namespace velk {

class File_TableSource;

/// Music, photos, videos and books have no button that reloads them after a connection, so the
/// session has each load its list once, one after the other. A section that is loading already
/// refuses a load, for that list may be an earlier phone's: here the wish is kept until it has
/// ended. A list that a person refreshes meanwhile is not loaded twice. User-interface thread.
class Pane_Loads {
  public:
    /// The sections, in the order in which they load; they live as long as the window.
    void take(std::vector<File_TableSource*> panes);
    /// Empties the tables, whose files another phone may not have, and wishes one load of each;
    /// what is left of earlier wishes is dropped.
    void start();
    /// The phone that was connected last has been asked for all these lists.
    bool all_ended() const { return wished_.empty(); }

  private:
    void has_ended(File_TableSource* pane);
    void go_on();

    std::vector<File_TableSource*> panes_;
    std::vector<File_TableSource*> wished_;    // the one being loaded included
    std::vector<File_TableSource*> outdated_;  // whose running load began before the wish
    File_TableSource* loading_ = nullptr;
};

}  // namespace velk
