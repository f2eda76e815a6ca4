@echo off
rem Removes the registration of the server: for all users of the machine where this user may do so, else of this user.
setlocal
set status=0
set scope=
set key=HKLM\Software\Classes\QZBase.RightsCheck
reg add %key% /f >nul 2>&1
if errorlevel 1 (set scope=/n /i:user) else (reg delete %key% /f >nul 2>&1)
if "%scope%"=="" (echo Removing QZBase from this machine.) else (echo Removing QZBase from this user.)

if exist "%~dp0x64\QZBase.dll" call :remove "%SystemRoot%\System32\regsvr32.exe" "%~dp0x64\QZBase.dll"
if exist "%~dp0x86\QZBase.dll" if exist "%SystemRoot%\SysWOW64\regsvr32.exe" call :remove "%SystemRoot%\SysWOW64\regsvr32.exe" "%~dp0x86\QZBase.dll"
exit /b %status%

:remove
%1 /s /u %scope% %2
if errorlevel 1 (
  echo Failed: %2
  set status=1
)
exit /b 0
