#include "apps/capture/text_recognition.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

extern char** environ;

namespace capture {
namespace {

namespace fs = std::filesystem;

constexpr char kProgram[] = "tesseract";
constexpr char kChineseAndEnglish[] = "chi_sim+eng";

std::string new_temporary_folder() {
  std::error_code error;
  std::string pattern = (fs::temp_directory_path(error) / "corvane-text-XXXXXX").string();
  if (error || mkdtemp(pattern.data()) == nullptr) return {};
  return pattern;
}

}  // namespace

CTextRecognition::~CTextRecognition() { Cancel(); }

bool CTextRecognition::Installed() {
  const char* path = std::getenv("PATH");
  std::istringstream folders(path == nullptr ? "" : path);
  for (std::string folder; std::getline(folders, folder, ':');) {
    if (access((folder + "/" + kProgram).c_str(), X_OK) == 0) return true;
  }
  return false;
}

bool CTextRecognition::Start(const std::vector<std::uint8_t>& png) {
  Cancel();
  folder_ = new_temporary_folder();
  if (folder_.empty()) return false;
  std::ofstream file(folder_ + "/part.png", std::ios::binary);
  file.write(reinterpret_cast<const char*>(png.data()), static_cast<std::streamsize>(png.size()));
  file.close();
  tried_chinese_ = true;
  if (file && launch(kChineseAndEnglish)) return true;
  Cancel();
  return false;
}

bool CTextRecognition::launch(const char* languages) {
  const std::string input = folder_ + "/part.png";
  const std::string output = folder_ + "/text.txt";
  std::vector<const char*> arguments = {kProgram, input.c_str(), "stdout", "--psm", "6"};
  if (languages != nullptr) arguments.insert(arguments.end(), {"-l", languages});
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&files, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  posix_spawn_file_actions_addopen(&files, 2, "/dev/null", O_WRONLY, 0);
  pid_t process = 0;
  const int failed = posix_spawnp(&process, kProgram, &files, nullptr,
                                  const_cast<char* const*>(arguments.data()), environ);
  posix_spawn_file_actions_destroy(&files);
  process_ = failed == 0 ? process : 0;
  return failed == 0;
}

std::optional<std::string> CTextRecognition::TakeResult() {
  if (process_ <= 0) return std::nullopt;
  int status = 0;
  if (waitpid(process_, &status, WNOHANG) == 0) return std::nullopt;
  process_ = 0;
  const bool succeeded = WIFEXITED(status) && WEXITSTATUS(status) == 0;
  if (!succeeded && tried_chinese_) {
    // Without the Chinese data the program refuses; its own default language may still read it.
    tried_chinese_ = false;
    if (launch(nullptr)) return std::nullopt;
  }
  std::string text = succeeded ? read_output() : std::string();
  remove_files();
  return text;
}

std::string CTextRecognition::read_output() const {
  std::ifstream file(folder_ + "/text.txt", std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  while (!text.empty() && (text.back() == '\n' || text.back() == '\f' || text.back() == ' ')) {
    text.pop_back();
  }
  return text;
}

void CTextRecognition::Cancel() {
  if (process_ > 0) {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    process_ = 0;
  }
  remove_files();
}

void CTextRecognition::remove_files() {
  if (folder_.empty()) return;
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
  folder_.clear();
}

}  // namespace capture
