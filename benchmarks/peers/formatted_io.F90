! The peer of loading, saving and converting in Fortran.
! usage: formatted_io lines INPUT OUTPUT MESSAGES | one-line INPUT OUTPUT MESSAGES CONVERTED
program formatted_io
  use, intrinsic :: iso_fortran_env, only: int64, real64
  use formatted_messages
  implicit none

  character(4096) :: input, output
  character(16) :: form
  integer :: messages
  type(message_t), allocatable :: loaded(:)

  call get_command_argument(1, form)
  call get_command_argument(2, input)
  call get_command_argument(3, output)
  messages = integer_argument(4)
  allocate (loaded(messages))
  if (form == 'lines') then
    call load_lines
    call save_lines
  else
    call load_one_lines
    call convert(integer_argument(5))
  end if
  call check_loaded

contains

  integer function integer_argument(position)
    integer, intent(in) :: position
    character(16) :: text
    call get_command_argument(position, text)
    read (text, *) integer_argument
  end function

  real(real64) function now()
    integer(int64) :: count, rate
    call system_clock(count, rate)
    now = real(count, real64) / real(rate, real64)
  end function

  subroutine report(name, value)
    character(*), intent(in) :: name
    real(real64), intent(in) :: value
    print '(A,1X,ES24.16E3)', name, value
  end subroutine

  subroutine load_lines
    integer :: unit, i
    real(real64) :: start
    start = now()
    open (newunit=unit, file=input, action='read', status='old')
    read (unit, '(///)')
    do i = 1, messages
      call read_lines(unit, loaded(i))
    end do
    close (unit)
    call report('read', now() - start)
  end subroutine

  subroutine save_lines
    integer :: unit, i
    real(real64) :: start
    start = now()
    open (newunit=unit, file=output, action='write', status='replace')
    write (unit, '(//)')
    write (unit, '("*** Orbital Elements - VCMs ***")')
    do i = 1, messages
      call write_lines(unit, loaded(i))
    end do
    close (unit)
    call report('write', now() - start)
  end subroutine

  subroutine load_one_lines
    integer :: unit, i
    real(real64) :: start
    start = now()
    open (newunit=unit, file=input, action='read', status='old', recl=2 * ONE_LINE_LENGTH)
    do i = 1, messages
      call read_one_line(unit, loaded(i))
    end do
    close (unit)
    call report('read', now() - start)
  end subroutine

  ! There and back in memory; the texts that come out go into a file.
  subroutine convert(converted)
    integer, intent(in) :: converted
    character(ONE_LINE_LENGTH), allocatable :: texts(:)
    character(80) :: lines(50)
    type(message_t) :: there, back
    integer :: unit, i
    real(real64) :: start
    allocate (texts(converted))
    open (newunit=unit, file=input, action='read', status='old', recl=2 * ONE_LINE_LENGTH)
    read (unit, '(A)') texts
    close (unit)
    start = now()
    do i = 1, converted
      call read_one_text(texts(i), there)
      call write_text(lines, there)
      back = message_t()
      call read_text(lines, back)
      call write_one_text(texts(i), back)
    end do
    call report('convert', now() - start)
    open (newunit=unit, file=output, action='write', status='replace', recl=2 * ONE_LINE_LENGTH)
    write (unit, '(A)') texts
    close (unit)
  end subroutine

  subroutine check_loaded
    integer :: i, k
    real(real64) :: total
    total = 0
    do i = 1, messages
      associate (m => loaded(i))
        do k = 1, 3
          total = total + m%eciPos(k)
        end do
        do k = 1, 3
          total = total + m%eciVel(k)
        end do
        total = total + m%bTerm
        total = total + m%wtdRms
        do k = 1, m%covMtxSize * (m%covMtxSize + 1) / 2
          total = total + m%covariance(k)
        end do
      end associate
    end do
    call report('check messages', real(messages, real64))
    call report('check sum', total)
  end subroutine

end program
