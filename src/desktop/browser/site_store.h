// The folders in which the sites keep their cookies, their data and their cache between two runs.
#pragma once

#include <QString>

namespace talvor {

// The engine lends the sites most of the disk, on which the candidatures lie as well, and cannot be told a
// bound; it also never lets go of a folder in use. So the store has its bound here, and is emptied by going on
// in new folders. They lie outside the data folder, and their number grows.
class SiteStore {
 public:
  enum class Beginning {
    Kept,  // as the last run left it; one that has outgrown its bound begins with its cookies alone
    Fresh  // new and empty
  };
  explicit SiteStore(Beginning beginning);

  [[nodiscard]] QString Folder() const;
  [[nodiscard]] QString CacheFolder() const;
  // Removes the stores of before, as far as the engine has let go of them.
  void DropFormer() const;

  // What all sites together may keep, the cache aside.
  static constexpr qint64 Bound = 300 << 20;  // bytes
  static constexpr int CacheBound = 100 << 20;
  // What lies in a folder, in bytes. It takes a while on a slow disk.
  [[nodiscard]] static qint64 SizeOf(const QString& folder);

 private:
  int number_;
};

}  // namespace talvor
