# The Debian packages that the project needs, in the one place that names them.

# To build, run and test.
buildPackages=(
  g++ cmake ninja-build ccache mold
  qt6-base-dev      # windows, printing, tests; brings the X11 and the headless platform along
  qt6-svg-dev       # draws the icons of the application folder
  libqt6svg6        # lets the icon theme's pictures be read at run time
  libgl-dev         # Qt's own CMake files ask for it
  libicu-dev        # what each character is; Qt's own library needs it too
  libcups2-dev      # what a print queue answers
  libglib2.0-dev    # opens a file with the desktop's program; Qt's own packages run on it
  libsqlite3-dev libsqlitecpp-dev
  breeze-icon-theme # toolbar pictures
  fonts-liberation  # the type-writer font of the documents, and any font at all on a bare machine
  libgtest-dev libbenchmark-dev
  poppler-utils     # read a PDF file in the tests as somebody else would
  xvfb xauth        # a display for machines that have none
)

# To make the package.
packagePackages=(
  dpkg-dev file          # find what the program depends on
  desktop-file-utils appstream lintian # validate
  fakeroot               # installs into a folder in its test
)

# For .ci/run alone.
checkPackages=(
  clang-format clang-tidy
  at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi # what a screen reader asks the windows with
  openbox                                              # gives the keyboard from a dialog back to its host
)
