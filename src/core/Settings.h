#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace kinalyx {

class IHost;

/// A value of `AngleFrom`.
constexpr std::int32_t kFromUpright = 1;

/// What the settings tell.
class ISettingsEvents {
 public:
  virtual ~ISettingsEvents() = default;
  /// A key was to be written and the file had gone: it holds its first-run values again, and every member may
  /// have changed.
  virtual void SettingsReloaded() = 0;
};

/// What keys and drawing tools do where the way of old and that of an editor differ.
constexpr std::int32_t kClassicKeys = 0;
constexpr std::int32_t kEditorKeys = 1;

/// All lasting settings of the workstation. Two plain INI files in the data folder hold them; one loader
/// reads every key once, at start-up, into the members below, which carry the keys' own names. From then
/// on the program works on the members, and every change is written through at once, key by key. Make one
/// and hand it to those who need it.
class Settings {
 public:
  /// @param dataPath  the per-user data folder, made when something is first written into it
  /// @param appPath   the folder of the program file
  /// @param events    told from within the call that writes; outlives the settings
  Settings(IHost& host, std::string dataPath, std::string appPath, ISettingsEvents& events);
  /// Settings that nobody shows.
  Settings(IHost& host, std::string dataPath, std::string appPath);
  Settings(const Settings&) = delete;
  Settings& operator=(const Settings&) = delete;

  /// The data folder of the user who runs the program.
  static std::string UserDataPath();

  const std::string DataPath;
  const std::string AppPath;
  /// While true, controls are being filled and their change handlers write nothing.
  bool Loading = false;

  // --- [General]
  std::string WindowMode;  ///< "1" full screen, "2" large, "3" medium, "4" small window
  std::string ScreenMode;  ///< number of the analysis layout opened by default
  std::string UserName;    ///< the instructor
  std::string CompanyName;
  bool UseNetwork = false;             ///< the library lies in a folder of the user's choice
  std::string LibraryPath;             ///< root of the video library
  bool Logo = false;                   ///< print the logo
  std::string LogoName;                ///< its picture file
  std::string BackgroundPic;           ///< picture of the main menu page
  std::int32_t CaptionPosition = 0;    ///< 1 to 10, where the heading lines stand on it
  std::array<std::string, 6> Heading;  ///< lines 1 to 5; element 0 is not used
  std::string Exporter;
  std::string CDBurner;
  std::string UpdateCheck;
  std::int32_t RestartOption = 0;  ///< page to reopen after a self-restart; 1 the setup page

  // --- [VidCap]
  bool ImportCaptureMode = false;
  std::int32_t VideoInSource = 0;
  bool DVMode = false;
  std::int32_t NameMode = 0;
  std::string ImportFolder;
  std::string AutoImportFolder;
  std::int32_t CapMode = 0;
  std::int32_t BeepPausetime = 0;  ///< seconds
  std::int32_t BeepCapTime = 0;    ///< seconds
  std::int32_t BeepCycles = 0;
  bool OneCam = false;
  std::string TriggerLevel;
  std::string SoundLevel;
  std::array<std::string, 2> TriggerTime;
  std::string OneClickTime;
  std::string RemoteKeys;  ///< that fire a one-click capture, see RemoteKeysOf
  std::int32_t CameraSelect = 0;
  std::string CamExt;
  bool ReverseFields = false;
  bool SplitFields = false;
  bool Recompress = false;
  bool HDReverseFields = false;
  bool HDSplitFields = false;
  bool HDRecompress = false;
  bool AutoReverseFields = false;
  bool AutoSplitFields = false;
  bool AutoRecompress = false;
  bool AnalogResize = false;
  bool HDResize = false;
  bool AutoResize = false;
  std::int32_t RealFR = 0;  ///< pictures per second
  std::int32_t HDRealFR = 0;
  std::int32_t AutoRealFR = 0;
  std::int32_t KeepPictureSize = 0;  ///< 1: what is imported stays as large as it is, else the templates say
  std::int32_t ImportEdge = 0;       ///< 1: what is imported as tape is sharpened a little

  // --- [Analysis]
  std::int16_t GridSize = 0;
  std::int16_t SlomoSpeed = 0;   ///< percent, 1 to 100
  std::int32_t VideoFit = 0;     ///< a video that is opened: 1 is shown whole, anything else fills its window's height
  std::int32_t SoundVolume = 0;  ///< percent; 0 is silent
  std::int32_t BarPictures = 0;  ///< 1: pictures of the video along its bar, where there is room
  std::int32_t LockByTime = 0;   ///< 1: locked videos of different rates go by the time, else by their pictures
  std::int32_t CadWidth = 0;     ///< line width of drawings in pixels
  bool CadOutline = false;
  std::int32_t RandomColor = 0;              ///< 0 single colours, 1 randomized
  std::array<std::int32_t, 13> NewColors{};  ///< keys NewColor0 to NewColor12: colour of each tool
  std::int32_t StrobeStep = 0;
  std::int32_t OpenDlgChoice = 0;  ///< open panel: 0 right, 1 left, 2 middle
  std::int32_t ShortGame = 0;      ///< short-game naming: 1 on, anything else off
  std::int32_t ShapeLabels = 0;    ///< 1: figures stand beside drawings
  std::int32_t AngleFrom = 0;      ///< lines lean from the level, or kFromUpright
  std::int32_t SpeedUnit = 0;      ///< of the figures beside paths, see ShapeLabels.h
  std::int32_t KeysAndTools = 0;   ///< kClassicKeys or kEditorKeys; anything else is classic

  // --- [Ruler]
  std::int32_t CalibNumber = 0;  ///< measured pixels
  float CalibNumberOut = 0;      ///< pixels per inch in a picture of the height CalibHeight
  std::int32_t CalibWidth = 0;   ///< pixels of the picture's width when it was calibrated; 0 unknown
  std::int32_t CalibHeight = 0;  ///< and of its height; 0 in settings that know only the width, or neither
  std::int32_t CalibInput = 0;
  std::int32_t CalibOutput = 0;
  std::int32_t RulerPerVideo = 0;  ///< 1: a video is measured by its own ruler alone
  std::string NTSCorPAL;           ///< "0" NTSC, 60 fields a second; "1" PAL, 50

  // --- [Layout]
  std::string Design;                        ///< colour scheme, "0" to "8"
  std::string Language;                      ///< in which the program speaks, "de"; empty: as the desktop
  std::array<std::string, 3> PrimaryName;    ///< "Student", "student", "students"
  std::array<std::int32_t, 4> WindowInfo{};  ///< top, left, width, height of the main form in twips

  std::string LastInstructor;  ///< where the library was left; names of folders
  std::string LastStudent;     ///< that have gone are ignored
  std::int32_t StripRows = 0;  ///< the second row of the tool strip: 0 closed, 1 open
  std::string CardPlaces;      ///< where the cards of the stage were put, see CardDesk.h

  std::array<std::string, 4> NetworkCamera;  ///< [VidCap]: addresses; what holds no "://" is none

  // --- capture.ini, [General]
  std::array<std::string, 2> Camera;  ///< keys Camera1 and Camera2
  std::array<std::string, 2> CameraSize;
  std::array<std::string, 2> CameraInput;
  std::array<std::string, 2> CameraFormat;
  std::string SoundCardSource;
  std::string SoundCardInput;
  std::array<std::string, 2> CurrentCamera;  ///< the pair that the capture code compares with

  /// Number of the analysis layout that `ScreenMode` names.
  std::int16_t ScreenModeNumber() const;
  /// The shape engine keeps a log. No first run writes this key, `LogEnabled` in [Analysis], and without it
  /// there is none.
  bool LogEnabled = false;
  /// Colour of the path-down tool: chosen on the setup page, kept while the program runs.
  std::int32_t PathDownColor = 0xFFFF;

  /// Makes `config10.ini` with its first-run values when it is missing, and reads every key. A key that is
  /// missing from the file reads as the path of the file, a number thereby as 0; a Boolean that cannot be
  /// read keeps its first-run value, and the user is told which it is, once in a run.
  /// False when the file was missing and could not be made: the first-run values then hold for this run,
  /// and the user has been told.
  bool LoadSettings();
  /// Takes name, company, network flag and library path over from the old `config.ini`, if there is one.
  void MigrateOldConfig();
  /// Writes one key. When the file has gone it is made anew with its first-run values instead, and
  /// everything is loaded again: the value is dropped, and the result is false. It is false too when the
  /// disk refuses; the variable then holds the value for this run, and the user is told so once in a run.
  bool WriteConfigKey(const std::string& section, const std::string& key, const std::string& value);

  /// What the lists of the setup page show at the moment at which `capture.ini` is first made.
  struct CaptureLists {
    std::array<std::string, 2> size{"-1", "-1"};
    std::array<std::string, 2> input{"-1", "-1"};
    std::array<std::string, 2> format{"-1", "-1"};
    std::string soundSource;
    std::string soundInput = "-1";
  };
  CaptureLists captureLists;
  /// The same for `capture.ini`.
  bool LoadCaptureSettings();
  bool WriteCaptureKey(const std::string& section, const std::string& key, const std::string& value);

  /// Stores a value in one of the members above and writes its key: `settings.Set(settings.CadWidth, 7)`.
  /// Result as WriteConfigKey. A member that is no setting is only stored.
  template <typename T>
  bool Set(T& setting, std::type_identity_t<T> value) {
    setting = std::move(value);
    return WriteMember(&setting);
  }
  /// Writes what one of the members above holds. For values that belong together: store all, then write each.
  template <typename T>
  bool Write(T& setting) {
    return WriteMember(&setting);
  }
  /// False for a text of more than 149 characters, which would be read back cut.
  static bool Holds(std::string_view text);
  /// What the user is told of a path that is too long.
  static std::string TooLongText(const std::string& path);
  /// Stores and writes the colour of a tool button: 0 to 12, or 17, the path-down tool.
  bool SetNewColor(int index, std::int32_t colour);
  /// Keeps the place of the main form, in twips.
  void StoreWindowPlace(std::int32_t top, std::int32_t left, std::int32_t width, std::int32_t height);

  std::string ConfigFile() const;
  std::string CaptureFile() const;

 private:
  using Member = std::variant<std::string*, bool*, std::int16_t*, std::int32_t*, float*>;
  /// One key of a file: where it stands, what a first run writes, and the member that holds it.
  struct Key {
    std::string section;
    std::string name;
    std::string firstRun;
    Member member;
  };

  std::vector<Key> ConfigKeys();
  std::vector<Key> CaptureKeys();
  bool MakeFile(const std::vector<Key>& keys, const std::string& path);
  void ReadKeys(const std::vector<Key>& keys, const std::string& path);
  static bool Take(const Key& key, const std::string& text);
  bool WriteMember(const Member& member);
  bool WriteTo(const std::string& file, const std::string& section, const std::string& key, const std::string& value);
  void TellBadBooleans(const std::vector<const Key*>& bad, const std::string& path, std::size_t missing);

  IHost& host_;
  ISettingsEvents& events_;
  std::vector<std::string> toldKeys_;
  bool toldUnwritable_ = false;
};

}  // namespace kinalyx
