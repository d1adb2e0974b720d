#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Moment.h"
#include "forms/StationListModel.h"
#include "forms/Workspace.h"
#include "map/Canvas.h"

class QAction;
class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace kestrel {

class FlowLayout;
class ListenerBar;
class StationTable;

/// The panel that tells who it can be: the stations of some channels by their fields at home, or those of the
/// whole band, sorted, searched, struck out, copied and saved.
class StationList final : public QWidget {
 public:
  explicit StationList(const Workspace& workspace, QWidget* parent = nullptr);
  ~StationList() override;

  /// Reads the channels and lists their stations as seen from the session's home. The whole band is read
  /// anew too while it is shown.
  void Show(const std::vector<float>& channels, Moment moment);

  /// The same stations at another moment; nothing is read.
  void Rerank(Moment moment);

  /// Makes the station of the map's mark the current row, without calling RowChosen.
  void Choose(const StationMark& mark);
  void Choose(float frequency, const std::string& callSign);

  /// Shows the channels, or the whole band: the strongest of each channel, or what the Find box asks for.
  void SetWholeBand(bool wholeBand);
  bool IsWholeBand() const;

  /// Goes to the Find box; with a text that is looked for in the whole band.
  void Find(const QString& text = {});

  /// Goes to the rows.
  void FocusRows();

  /// The station of the current row, if there is one. It holds until the next call of this panel.
  const ListedStation* Chosen() const;

  /// The stations shown, for what else tells of them.
  const std::vector<ListedStation>& Stations() const { return channels_.Stations; }

  HoursRule Rule() const;

  /// One sentence: channels, home, hour, how many are on the air, the three strongest.
  QString Sentence() const;

  /// Called when another row has become the current one; nullptr: none is.
  std::function<void(const ListedStation*)> RowChosen;
  /// Enter or a double click on a station of the session's channel.
  std::function<void(const std::string& callSign)> LookupAsked;
  /// The same on a station of another channel, which is to be shown; the panel then chooses the station.
  std::function<void(float frequency)> ChannelAsked;
  /// Called when the rule of the hours may have changed.
  std::function<void()> ChoicesChanged;

 protected:
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// A station whatever happens to the rows.
  struct Key {
    float Frequency = 0;
    std::string CallSign;
    int Line = 0;  // 0: any
  };

  void LayOut();
  void LayOutFind(FlowLayout& bar);
  void AddActions();
  RankingChoices Choices() const;
  void PrepareBand();
  void BandTurned();

  std::vector<ListedStation> StationsWanted();
  void Fill();
  void Refill();
  void Tell();
  void TellChosen();
  bool Reselect(const Key& key);
  void CurrentChanged();
  void TakeFound();
  void Activate();
  void Strike();
  void Copy();
  void Save();
  void ShowMenu(QPoint at);

  Workspace workspace_;
  std::vector<float> frequencies_;
  Moment moment_{};
  std::vector<std::string> struck_;
  RankedChannels channels_;
  RankedChannels band_;  // while the whole band is shown
  StationTexts bandTexts_;
  std::size_t found_ = 0;  // in the whole band, those not shown among them
  std::optional<Key> chosen_;
  std::pair<int, Qt::SortOrder> channelSort_ = {};  // of the channels, while the whole band is shown
  bool quiet_ = false;                              // rows are being replaced
  bool preparing_ = false;                          // the whole band
  bool prepareAgain_ = false;
  bool stopAsked_ = false;

  StationListModel model_;
  StationOrder* order_;
  StationTable* table_;
  ListenerBar* choices_ = nullptr;
  QLineEdit* find_ = nullptr;
  QCheckBox* wholeBand_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QPushButton* stop_ = nullptr;
  QLabel* now_ = nullptr;
  QLabel* told_ = nullptr;   // of the chosen station
  QLabel* worth_ = nullptr;  // of the numbers
  QAction* lookUp_ = nullptr;
  QAction* strike_ = nullptr;
};

}  // namespace kestrel
