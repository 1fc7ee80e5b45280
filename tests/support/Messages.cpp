#include "support/Messages.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

Lines goldenMessage() {
  return {
      "<> SP VECTOR/COVARIANCE MESSAGE - V2.0",
      "<>",
      "<> MESSAGE TIME (UTC):                                  CENTER:",
      "<> SATELLITE NUMBER:     1                    INT. DES.: 1989-021F",
      "<> COMMON NAME:",
      "<> EPOCH TIME (UTC): 2028 206 (24 JUL) 12:04:31.384  EPOCH REV:  5513",
      "<> J2K POS (KM):    -11044.90753274    3239.31607467    6220.99449004",
      "<> J2K VEL (KM/S):   2.903593388458   3.053660331710   3.565048888025",
      "<> ECI POS (KM):    -11044.91823553    3239.31921365    6221.00051833",
      "<> ECI VEL (KM/S):   2.903596202111   3.053663290781   3.565052342644",
      "<> EFG POS (KM):      5916.69794133    9872.99819044    6221.00051833",
      "<> EFG VEL (KM/S):   2.943864426105  -4.010549611901   3.565052342644",
      "<> GEOPOTENTIAL: EGM-96 70Z,70T  DRAG: JAC70/MSIS90  LUNAR/SOLAR: ON",
      "<> SOLAR RAD PRESS: ON   SOLID EARTH TIDES: OFF  IN-TRACK THRUST: OFF",
      "<> BALLISTIC COEF (M2/KG):  0.112473E-02 BDOT (M2/KG-S): 0.731905E-10",
      "<> SOLAR RAD PRESS COEFF (M2/KG):  0.358704E-02  EDR(W/KG):  0.39E-03",
      "<> THRUST ACCEL (M/S2):  0.000000E+00  C.M. OFFSET (M): -0.559277E+00",
      "<> SOLAR FLUX: F10:  76  AVERAGE F10: 129  AVERAGE AP:   9.3",
      "<> TAI-UTC (S): 37  UT1-UTC (S):  0.20345  UT1 RATE (MS/DAY):  0.308",
      "<> POLAR MOT X,Y (ARCSEC): -0.2986  0.0534 IAU 1980 NUTAT:  12 TERMS",
      "<> TIME CONST LEAP SECOND TIME (UTC): 2016 366 (31 DEC) 00:00:00.000",
      "<> INTEGRATOR MODE: ASW          COORD SYS: J2000  PARTIALS: ANALYTIC",
      "<> STEP MODE: TIME  FIXED STEP: OFF  STEP SIZE SELECTION: MANUAL",
      "<> INITIAL STEP SIZE (S):  204.651  ERROR CONTROL: 0.265E-13",
      "<> VECTOR U,V,W SIGMAS (KM):           1.6953     2.4569     1.2225",
      "<> VECTOR UD,VD,WD SIGMAS (KM/S):      0.0001     0.0001     0.0000",
      "<> COVARIANCE MATRIX (EQUINOCTIAL ELS): ( 9x 9) WTD RMS:  0.12828E+01",
      "<> -0.10719E-10  0.37063E-10 -0.40213E-11  0.80357E-09  0.68433E-10",
      "<>  0.14330E-08  0.51682E-04  0.17529E-06 -0.45838E-08  0.48485E-07",
      "<>  0.14219E-13  0.16446E-15 -0.39717E-11 -0.63790E-03  0.15638E-08",
      "<>  0.77459E-05 -0.13663E-05  0.35154E-14 -0.70318E-03  0.93317E-12",
      "<>  0.13596E-11  0.99913E-14  0.27446E-12 -0.29345E-08  0.13818E-07",
      "<> -0.15338E-13 -0.32939E-14  0.36669E-10  0.17570E-13  0.67346E-12",
      "<> -0.25332E-10 -0.76963E-08  0.27423E-06  0.58109E-05 -0.54229E-04",
      "<> -0.42590E-08  0.20040E-11  0.23555E-10  0.32403E-08 -0.16158E-06",
      "<>  0.98505E-08 -0.15915E-02 -0.10034E-10  0.24235E-03 -0.47250E-12",
  };
}

std::string goldenOneLine() {
  std::ifstream file(VCM_SAMPLES_DIR "/catalogue.one");
  std::string line;
  std::getline(file, line);
  return line;
}

void putAt(std::string& line, int column, std::string_view text) {
  const auto at = static_cast<std::size_t>(column - 1);
  if (line.size() < at + text.size()) {
    line.resize(at + text.size(), ' ');
  }
  line.replace(at, text.size(), text);
}

Lines withText(Lines message, int line, int column, std::string_view text) {
  putAt(message[static_cast<std::size_t>(line - 1)], column, text);
  return message;
}

Lines bareForm(const Lines& message) {
  Lines bare;
  for (std::size_t number = 1; number <= message.size(); ++number) {
    constexpr std::string_view kDropped = "\1\2\3\5\7\10\13\14";
    if (kDropped.find(static_cast<char>(number)) == std::string_view::npos) {
      bare.push_back(message[number - 1].substr(3));
    }
  }
  return bare;
}

std::string joined(const Lines& lines, std::string_view lineEnd) {
  std::string text;
  for (const std::string& line : lines) {
    text.append(line).append(lineEnd);
  }
  return text;
}

std::vector<std::string_view> views(const Lines& lines) { return {lines.begin(), lines.end()}; }

std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TemporaryFile::TemporaryFile(std::string_view content) : path_("/tmp/vcm-test-XXXXXX") {
  const int file = mkstemp(path_.data());
  if (file < 0 || write(file, content.data(), content.size()) < 0 || close(file) != 0) {
    throw std::runtime_error("no temporary file");
  }
}

TemporaryFile::~TemporaryFile() { std::remove(path_.c_str()); }
