// The tests of the desktop run on one application, without a screen.

#include <gtest/gtest.h>
#include <unistd.h>

#include "desktop/application.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  if (::geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  testing::InitGoogleTest(&argc, argv);
  // Devices to refuse: a machine without any would refuse them by itself.
  qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--use-fake-device-for-media-stream");
  talvor::Application application(argc, argv);
  return RUN_ALL_TESTS();
}
