! Which satellites come closest to the Earth: perigee heights of a catalogue, the lowest ones first.
!
!   lowest_perigees MESSAGES COUNT
!   lowest_perigees samples/catalogue.vcm 5
program lowest_perigees
  use, intrinsic :: iso_c_binding
  use, intrinsic :: iso_fortran_env, only: error_unit
  implicit none

  interface
    integer(c_int32_t) function VcmLoadFile(vcmFile) bind(c, name="VcmLoadFile")
      import
      character(kind=c_char), intent(in) :: vcmFile(*)
    end function
    integer(c_int32_t) function VcmGetCount() bind(c, name="VcmGetCount")
      import
    end function
    subroutine VcmGetLoaded(order, satKeys) bind(c, name="VcmGetLoaded")
      import
      integer(c_int32_t), value :: order
      integer(c_int64_t), intent(out) :: satKeys(*)
    end subroutine
    integer(c_int32_t) function VcmRetrieveAllData(satKey, texts, numbers) bind(c, name="VcmRetrieveAllData")
      import
      integer(c_int64_t), value :: satKey
      character(kind=c_char), intent(out) :: texts(*)
      real(c_double), intent(out) :: numbers(*)
    end function
  end interface

  ! Positions of the array form are those of Vcm.h and one: Fortran counts from 1.
  integer, parameter :: arrayLength = 512, satNum = 1, eciPos = 10, eciVel = 13, orderSatellite = 0
  real(c_double), parameter :: gravity = 398600.4418_c_double, earthRadius = 6378.137_c_double  ! km, s

  character(len=512) :: file, wanted
  character(kind=c_char) :: texts(arrayLength)
  real(c_double) :: numbers(arrayLength)
  integer(c_int64_t), allocatable :: keys(:)
  real(c_double), allocatable :: heights(:)
  integer, allocatable :: satellites(:)
  integer :: i, lowest, count

  call get_command_argument(1, file)
  call get_command_argument(2, wanted)
  read (wanted, *, iostat=i) count
  if (i /= 0 .or. verify(trim(wanted), "0123456789") /= 0) call fail("usage: lowest_perigees MESSAGES COUNT")
  if (VcmLoadFile(trim(file) // c_null_char) /= 0) call fail("loading failed; HOST_TRACE_LOG=- shows why")

  allocate (keys(VcmGetCount()))
  allocate (heights(size(keys)), satellites(size(keys)))
  call VcmGetLoaded(int(orderSatellite, c_int32_t), keys)
  do i = 1, size(keys)
    if (VcmRetrieveAllData(keys(i), texts, numbers) /= 0) call fail("a message is gone")
    satellites(i) = nint(numbers(satNum))
    heights(i) = perigee(numbers(eciPos:eciPos + 2), numbers(eciVel:eciVel + 2)) - earthRadius
  end do
  do i = 1, min(count, size(keys))
    lowest = minloc(heights, 1)
    print "('satellite', i6, f9.1, ' km')", satellites(lowest), heights(lowest)
    heights(lowest) = huge(heights)
  end do

contains

  subroutine fail(message)
    character(len=*), intent(in) :: message
    write (error_unit, "(a)") message
    stop 1, quiet=.true.
  end subroutine

  ! Distance from the Earth's centre of the closest point of the orbit through a state.
  pure real(c_double) function perigee(r, v)
    real(c_double), intent(in) :: r(3), v(3)
    real(c_double) :: momentum(3), eccentricity(3)
    momentum = cross(r, v)
    eccentricity = cross(v, momentum) / gravity - r / norm2(r)
    perigee = dot_product(momentum, momentum) / (gravity * (1 + norm2(eccentricity)))
  end function

  pure function cross(a, b)
    real(c_double), intent(in) :: a(3), b(3)
    real(c_double) :: cross(3)
    cross = cshift(a, 1) * cshift(b, 2) - cshift(a, 2) * cshift(b, 1)
  end function
end program
