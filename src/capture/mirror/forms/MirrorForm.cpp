#include "capture/mirror/forms/MirrorForm.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "capture/mirror/forms/MirrorBar.h"
#include "capture/mirror/forms/MirrorView.h"
#include "core/Settings.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/ScreenAwake.h"
#include "platform/widgets/Scale.h"
#include "platform/widgets/Text.h"
#include "platform/widgets/Theme.h"

namespace kinalyx {
namespace {

constexpr int kRestMs = 3000;  // without the mouse
constexpr QSize kLeast(480, 320);
constexpr QSize kUsual(1120, 660);
constexpr int kGapOfPanes = 2;
constexpr double kUsualAspect = 16.0 / 9;
constexpr double kLargeStep = 5;  // seconds

/// In how many columns so many pictures are largest.
int ColumnsFor(int panes, QSize room, double aspect) {
  int best = 1;
  double most = 0;
  for (int columns = 1; columns <= panes; ++columns) {
    const int rows = (panes + columns - 1) / columns;
    const double width = std::min(static_cast<double>(room.width()) / columns, aspect * room.height() / rows);
    if (width <= most) continue;
    most = width;
    best = columns;
  }
  return best;
}

}  // namespace

/// What has come of a command, over the pictures.
class MirrorForm::Toast : public QWidget {
 public:
  explicit Toast(QWidget* parent) : QWidget(parent) {
    setObjectName("MirrorStatus");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
  }
  void Show(const QString& words) {
    if (words == words_ && isVisible() == !words.isEmpty()) return;
    words_ = words;
    setAccessibleName(words);
    setVisible(!words.isEmpty());
    Place();
    raise();
    update();
  }
  void Place() {
    const QSize room = parentWidget()->size();
    pixels_ = std::max(Px(16), room.height() / 22);
    if (const double width = PlateSize(words_, pixels_).width(); width > room.width() - 40)
      pixels_ = std::max(1, static_cast<int>(pixels_ * (room.width() - 40) / width));
    const QSize size = PlateSize(words_, pixels_).toSize() + QSize(2, 2);
    setGeometry(QRect(QPoint((room.width() - size.width()) / 2, room.height() * 7 / 10 - size.height() / 2), size));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintPlate(painter, {1, 1}, words_, pixels_);
  }

 private:
  QString words_;
  int pixels_ = 1;
};

MirrorForm::MirrorForm(Parts parts)
    : host_(parts.host),
      files_(JoinPath(parts.settings.DataPath, "capture")),
      jobs_(parts.host, parts.on == MirrorSession::On::Threads ? JobRunner::On::Worker : JobRunner::On::HostTimer) {
  setObjectName("MirrorForm");
  setWindowTitle(tr("Delayed Mirror - Kinalyx"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_QuitOnClose, false);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(kLeast);
  session_ = std::make_unique<MirrorSession>(
      MirrorSession::Parts{.host = parts.host,
                           .settings = parts.settings,
                           .setup = parts.setup,
                           .naming = parts.naming,
                           .remembered = parts.remembered,
                           .files = files_,
                           .jobs = jobs_,
                           .view = *this,
                           .post = parts.post,
                           .now = std::move(parts.now),
                           .makeGraph = std::move(parts.makeGraph),
                           .choicesPath = JoinPath(parts.settings.DataPath, "mirror.json"),
                           .on = parts.on});
  for (int pane = 0; pane < kMostPanes; ++pane) {
    auto* view = new MirrorView(pane, this);
    views_[static_cast<std::size_t>(pane)] = view;
    view->installEventFilter(this);
    connect(view, &MirrorView::RoomChanged, this,
            [this](int which, QSize pixels) { session_->WantSize(which, pixels.width(), pixels.height()); });
    connect(view, &MirrorView::Clicked, this, [this](int which) { session_->Choose(which); });
    connect(view, &MirrorView::DoubleClicked, this, [this] { ToggleFullScreen(); });
  }
  toast_ = new Toast(this);
  bar_ = new MirrorBar(*session_, this);
  bar_->hide();
  connect(bar_, &MirrorBar::FullScreenWanted, this, &MirrorForm::ToggleFullScreen);
  connect(bar_, &MirrorBar::ScreenWanted, this, &MirrorForm::FillScreen);
  connect(bar_, &MirrorBar::CloseWanted, this, &QWidget::close);
  rest_.setSingleShot(true);
  rest_.setInterval(kRestMs);
  connect(&rest_, &QTimer::timeout, this, &MirrorForm::RestBar);
}

MirrorForm::~MirrorForm() { session_.reset(); }

// ---------------------------------------------------------------- coming and going

void MirrorForm::Open() {
  if (session_->IsOpen()) {
    if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    return;
  }
  ShowAtPlace();
  for (MirrorView* view : views_)
    if (view) view->ShowSight({});  // of another session, perhaps of somebody else
  session_->Rest(false);
  session_->Open();
  awake_ = std::make_unique<ScreenAwake>(Tr("The delayed mirror is shown"));
  MirrorChanged();
  WakeBar();
  activateWindow();
  setFocus();
  emit OpenChanged(true);
}

/// Where it was last, as far as that is still on a monitor.
void MirrorForm::ShowAtPlace() {
  const MirrorChoices& choices = session_->Choices();
  const QRect place(choices.left, choices.top, choices.width, choices.height);
  const QList<QScreen*> screens = QGuiApplication::screens();
  const bool seen = place.width() >= kLeast.width() && std::ranges::any_of(screens, [&](const QScreen* screen) {
                      const QRect both = screen->availableGeometry() & place;
                      return both.width() >= kLeast.width() / 2 && both.height() >= kLeast.height() / 2;
                    });
  if (seen) {
    setGeometry(place);
  } else if (!screens.isEmpty()) {
    const QRect room = screens.front()->availableGeometry();
    QRect usual(QPoint(), kUsual.boundedTo(room.size() * 0.9));
    usual.moveCenter(room.center());
    setGeometry(usual);
  }
  if (!choices.fullScreen) return show();
  const auto named =
      std::ranges::find_if(screens, [&](const QScreen* screen) { return Std(screen->name()) == choices.screen; });
  if (named != screens.end()) FillScreen(static_cast<int>(named - screens.begin()));
  else showFullScreen();
}

void MirrorForm::NotePlace() {
  MirrorChoices& choices = session_->Choices();
  choices.fullScreen = isFullScreen();
  choices.screen = screen() ? Std(screen()->name()) : std::string();
  const QRect place = isFullScreen() || isMaximized() ? normalGeometry() : geometry();
  if (!place.isValid()) return;
  choices.left = place.left();
  choices.top = place.top();
  choices.width = place.width();
  choices.height = place.height();
}

void MirrorForm::closeEvent(QCloseEvent* event) {
  NotePlace();
  rest_.stop();
  session_->Close();
  awake_.reset();
  event->accept();
  emit OpenChanged(false);
}

void MirrorForm::FillScreen(int index) {
  const QList<QScreen*> screens = QGuiApplication::screens();
  if (index < 0 || index >= screens.size()) return;
  // A window that fills one monitor is not moved to another one by every desktop.
  if (isFullScreen()) showNormal();
  const QRect room = screens[index]->geometry();
  QRect place = geometry();
  place.setSize(place.size().boundedTo(room.size() * 0.9));
  place.moveCenter(room.center());
  setGeometry(place);
  if (windowHandle()) windowHandle()->setScreen(screens[index]);
  showFullScreen();
}

void MirrorForm::ToggleFullScreen() {
  if (isFullScreen()) showNormal();
  else showFullScreen();
}

// ---------------------------------------------------------------- keys and mouse

void MirrorForm::keyPressEvent(QKeyEvent* event) {
  const bool shift = event->modifiers() & Qt::ShiftModifier;
  const double step = shift ? kLargeStep : kDelayStep;
  const auto delay = [&](double by) { session_->SetDelay(session_->Choices().Delay(session_->Chosen()) + by); };
  const auto seconds = [&](int by) { session_->SetLoopSeconds(session_->Choices().loopSeconds + by); };
  const auto choose = [&](int by) {
    session_->Choose((session_->Chosen() + by + session_->Choices().panes) % session_->Choices().panes);
  };
  const int key = event->key();
  // Held down, these go on; all others are meant once.
  switch (key) {
    case Qt::Key_Up: return delay(step);
    case Qt::Key_Down: return delay(-step);
    case Qt::Key_Left: return session_->StepBy(-1);
    case Qt::Key_Right: return session_->StepBy(1);
    case Qt::Key_Plus: return seconds(1);
    case Qt::Key_Minus: return seconds(-1);
    default: break;
  }
  if (event->isAutoRepeat()) return;
  switch (key) {
    case Qt::Key_1:
    case Qt::Key_2:
    case Qt::Key_3:
    case Qt::Key_4: return session_->SetPanes(key - Qt::Key_0);
    case Qt::Key_Tab: return choose(1);
    case Qt::Key_Backtab: return choose(-1);
    case Qt::Key_L:
    case Qt::Key_PageUp: return session_->ToggleLoop();
    case Qt::Key_Space: return session_->ToggleFreeze();
    case Qt::Key_K:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_PageDown: return session_->Keep();
    case Qt::Key_F: return session_->SetMirrored(!session_->Choices().mirrored);
    case Qt::Key_S:
      return session_->SetSpeed(static_cast<LoopSpeed>((static_cast<int>(session_->Choices().speed) + 1) % 3));
    case Qt::Key_C:
      return session_->SetCamera(1 - session_->Choices().cameras[static_cast<std::size_t>(session_->Chosen())]);
    case Qt::Key_F11: return ToggleFullScreen();
    case Qt::Key_Escape:
      if (isFullScreen()) showNormal();
      else close();
      return;
    default: QWidget::keyPressEvent(event);
  }
}

/// The bar comes with whatever the mouse does over the pictures.
bool MirrorForm::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress) WakeBar();
  return QWidget::eventFilter(object, event);
}

void MirrorForm::mouseMoveEvent(QMouseEvent*) { WakeBar(); }

void MirrorForm::WakeBar() {
  unsetCursor();
  if (!bar_->isVisible()) {
    bar_->ShowAll(isFullScreen());
    bar_->show();
    PlaceBar();
  }
  rest_.start();
}

void MirrorForm::RestBar() {
  if (bar_->Busy() || bar_->underMouse()) return rest_.start();
  bar_->hide();
  setCursor(Qt::BlankCursor);
}

// ---------------------------------------------------------------- what is shown

void MirrorForm::PlaceViews() {
  const int panes = session_->Choices().panes;
  shownPanes_ = panes;
  const int columns = ColumnsFor(panes, size(), kUsualAspect);
  const int rows = (panes + columns - 1) / columns;
  for (int pane = 0; pane < kMostPanes; ++pane) {
    MirrorView* view = views_[static_cast<std::size_t>(pane)];
    view->setVisible(pane < panes);
    if (pane >= panes) continue;
    const int row = pane / columns, column = pane % columns;
    const auto edge = [](int length, int parts, int at) { return length * at / parts; };
    QRect place(QPoint(edge(width(), columns, column), edge(height(), rows, row)),
                QPoint(edge(width(), columns, column + 1) - 1, edge(height(), rows, row + 1) - 1));
    if (column > 0) place.setLeft(place.left() + kGapOfPanes);
    if (row > 0) place.setTop(place.top() + kGapOfPanes);
    view->SetWindowHeight(height());
    view->setGeometry(place);
  }
  update();
}

void MirrorForm::PlaceBar() {
  const int most = width() - 2 * kGap;
  bar_->FitTo(most);
  const QSize size(std::min(most, std::max(bar_->sizeHint().width(), most * 2 / 3)), bar_->sizeHint().height());
  bar_->setGeometry(QRect(QPoint((width() - size.width()) / 2, height() - size.height() - kGap), size));
  bar_->raise();
}

void MirrorForm::resizeEvent(QResizeEvent*) {
  PlaceViews();
  if (bar_->isVisible()) PlaceBar();
  toast_->Place();
}

void MirrorForm::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange && session_ && session_->IsOpen()) {
    NotePlace();
    if (isMinimized() == static_cast<bool>(awake_)) {
      session_->Rest(isMinimized());
      awake_ = isMinimized() ? nullptr : std::make_unique<ScreenAwake>(Tr("The delayed mirror is shown"));
    }
    if (bar_->isVisible()) bar_->ShowAll(isFullScreen());
  }
}

void MirrorForm::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), Qt::black); }

void MirrorForm::MirrorChanged() {
  if (!session_) return;
  if (session_->Choices().panes != shownPanes_) PlaceViews();
  for (int pane = 0; pane < session_->Choices().panes; ++pane) {
    MirrorView* view = views_[static_cast<std::size_t>(pane)];
    view->SetBadge(Q(session_->Badge(pane)));
    view->SetNote(session_->Note(pane));
    view->SetChosen(pane == session_->Chosen() && session_->Choices().panes > 1);
  }
  toast_->Show(Q(session_->Status()));
  if (bar_->isVisible()) bar_->ShowAll(isFullScreen());
}

void MirrorForm::PanePictureCame(int pane) { views_[static_cast<std::size_t>(pane)]->ShowSight(session_->Show(pane)); }

}  // namespace kinalyx
