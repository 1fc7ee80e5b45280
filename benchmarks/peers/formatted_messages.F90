! Messages through formatted READs and WRITEs, one line at a time; nothing is checked.
module formatted_messages
  use, intrinsic :: iso_fortran_env, only: real64
  implicit none

  type date_t
    integer :: year = 0, day = 0, hour = 0, minute = 0
    real(real64) :: seconds = 0
  end type

  type message_t
    integer :: satNum = 0
    character(11) :: intlDes = ''
    character(25) :: commonName = ''
    type(date_t) :: epoch
    integer :: epochRev = 0
    real(real64), dimension(3) :: j2kPos = 0, j2kVel = 0, eciPos = 0, eciVel = 0
    real(real64), dimension(3) :: efgPos = 0, efgVel = 0
    character(6) :: geoName = ''
    integer :: geoZonals = 0, geoTesserals = 0
    character(12) :: dragModel = ''
    character(3) :: lunarSolar = '', radPress = '', earthTides = '', intrackThrust = ''
    real(real64) :: bTerm = 0, bDot = 0, agom = 0, edr = 0, thrustAccel = 0, cmOffset = 0
    integer :: f10 = 0, avgF10 = 0
    real(real64) :: avgAp = 0, taiMinusUtc = 0, ut1MinusUtc = 0, ut1Rate = 0, polarMotion(2) = 0
    integer :: nutationTerms = 0
    type(date_t) :: leapSecond
    character(6) :: integMode = ''
    character(5) :: coordSys = ''
    character(8) :: partials = ''
    character(4) :: stepMode = ''
    character(3) :: fixedStep = ''
    character(6) :: stepSelection = ''
    real(real64) :: initStepSize = 0, errorControl = 0
    real(real64), dimension(3) :: posSigmas = 0, velSigmas = 0
    integer :: covMtxSize = 0
    real(real64) :: wtdRms = 0
    real(real64) :: covariance(45) = 0
  end type

  integer, parameter :: ONE_LINE_LENGTH = 1500

  ! What the one-line form has no place for.
  type(date_t), parameter :: UNKNOWN_LEAP_SECOND = date_t(2049, 365, 23, 59, 59.999_real64)

contains

  subroutine read_lines(unit, m)
    integer, intent(in) :: unit
    type(message_t), intent(inout) :: m
    integer :: count, first
#define LINE(i) unit
#define SKIP1 read (unit, '()')
#define SKIP3 read (unit, '(//)')
#include "read_lines.inc"
#undef LINE
#undef SKIP1
#undef SKIP3
  end subroutine

  subroutine read_text(lines, m)
    character(*), intent(in) :: lines(:)
    type(message_t), intent(inout) :: m
    integer :: count, first
#define LINE(i) lines(i)
#define SKIP1
#define SKIP3
#include "read_lines.inc"
#undef LINE
#undef SKIP1
#undef SKIP3
  end subroutine

  subroutine write_lines(unit, m)
    integer, intent(in) :: unit
    type(message_t), intent(in) :: m
    integer :: count, first, day, whole
    character(3) :: month
#define LINE(i) unit
#include "write_lines.inc"
#undef LINE
  end subroutine

  subroutine write_text(lines, m)
    character(*), intent(inout) :: lines(:)
    type(message_t), intent(in) :: m
    integer :: count, first, day, whole
    character(3) :: month
#define LINE(i) lines(i)
#include "write_lines.inc"
#undef LINE
  end subroutine

  ! The day and the month that a day of the year is.
  subroutine calendar_day(date, day, month)
    type(date_t), intent(in) :: date
    integer, intent(out) :: day
    character(3), intent(out) :: month
    character(3), parameter :: MONTHS(12) = &
      ['JAN', 'FEB', 'MAR', 'APR', 'MAY', 'JUN', 'JUL', 'AUG', 'SEP', 'OCT', 'NOV', 'DEC']
    integer :: days(12), i
    days = [31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]
    if (mod(date%year, 4) == 0 .and. (mod(date%year, 100) /= 0 .or. mod(date%year, 400) == 0)) then
      days(2) = 29
    end if
    day = date%day
    do i = 1, 11
      if (day <= days(i)) exit
      day = day - days(i)
    end do
    month = MONTHS(i)
  end subroutine

  ! A message in the one-line form, from a file.
  subroutine read_one_line(unit, m)
    integer, intent(in) :: unit
    type(message_t), intent(inout) :: m
    character(9) :: designator
#define SOURCE unit
#include "read_one_line.inc"
#undef SOURCE
  end subroutine

  ! The same from a text.
  subroutine read_one_text(line, m)
    character(*), intent(in) :: line
    type(message_t), intent(inout) :: m
    character(9) :: designator
#define SOURCE line
#include "read_one_line.inc"
#undef SOURCE
  end subroutine

  subroutine write_one_text(line, m)
    character(*), intent(out) :: line
    type(message_t), intent(in) :: m
    write (line, '(I5,1X,I4,I3.3,I2.2,I2.2,F6.3,1X,I5,3(3X,F16.8,2(1X,F16.8),3(1X,F16.12)),1X,A6,1X,' // &
      'I2,"Z,",I2,"T",1X,A12,4(1X,A3),1X,E13.6,E13.6,1X,E13.6,E10.2,2(1X,E13.6),2(1X,I3),1X,F5.1,I3,1X,' // &
      'F8.5,1X,F6.3,2(1X,F7.4),1X,I3,1X,A6,T532,A5,T548,A8,T567,A4,T573,A3,1X,A6,1X,F8.3,1X,E9.3,' // &
      '3(1X,F10.4),T638,F8.4,2(3X,F8.4),T669,"(",I2,"x",I2,") ",E12.5,45E13.5,T1465,A25,T1492,A9)') &
      m%satNum, m%epoch, m%epochRev, m%j2kPos, m%j2kVel, m%eciPos, m%eciVel, m%efgPos, m%efgVel, &
      m%geoName, m%geoZonals, m%geoTesserals, m%dragModel, m%lunarSolar, m%radPress, m%earthTides, &
      m%intrackThrust, m%bTerm, m%bDot, m%agom, m%edr, m%thrustAccel, m%cmOffset, m%f10, m%avgF10, &
      m%avgAp, int(m%taiMinusUtc), m%ut1MinusUtc, m%ut1Rate, m%polarMotion, m%nutationTerms, &
      m%integMode, m%coordSys, m%partials, m%stepMode, m%fixedStep, m%stepSelection, m%initStepSize, &
      m%errorControl, m%posSigmas, m%velSigmas, m%covMtxSize, m%covMtxSize, m%wtdRms, m%covariance, &
      m%commonName, m%intlDes(3:)
  end subroutine

end module
