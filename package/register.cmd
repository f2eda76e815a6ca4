@echo off
rem Registers the server: for all users of the machine where this user may do so, else for this user alone.
rem The 32-bit server, where it is here, is registered for 32-bit programs.
setlocal
set status=0
set scope=
set key=HKLM\Software\Classes\QZBase.RightsCheck
reg add %key% /f >nul 2>&1
if errorlevel 1 (set scope=/n /i:user) else (reg delete %key% /f >nul 2>&1)
if "%scope%"=="" (echo Registering QZBase for this machine.) else (echo Registering QZBase for this user.)

if exist "%~dp0x64\QZBase.dll" call :register "%SystemRoot%\System32\regsvr32.exe" "%~dp0x64\QZBase.dll"
if exist "%~dp0x86\QZBase.dll" if exist "%SystemRoot%\SysWOW64\regsvr32.exe" call :register "%SystemRoot%\SysWOW64\regsvr32.exe" "%~dp0x86\QZBase.dll"
exit /b %status%

:register
%1 /s %scope% %2
if errorlevel 1 (
  echo Failed: %2
  set status=1
)
exit /b 0
