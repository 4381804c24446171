<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 마법사에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>지금 [ProductName] 시작</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>모든 파일이 최신 상태입니다.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>처리 중...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>설치 마법사에서 설치를 시작할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>연결 모드</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>로컬 데이터베이스가 손상되었습니다. 서버 연결을 끊은 다음 다시 연결하여 데이터베이스를 다시 만드십시오. 자세한 내용은 ‘~/.Quillmere/log’에 있습니다.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>응용 프로그램을 닫고 설치 프로그램 작업이 끝난 후 다시 시작(&amp;C)</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>이 폴더는 마운트 지점입니다. 마운트 지점이 아닌 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 제거 준비 완료</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>서버가 교체되었습니다. 다시 연결하려면 여기를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>파일 %1개를 동기화하는 중입니다.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>설치 마법사를 사용하여 [ProductName] 프로그램을 변경, 복구 또는 제거할 수 있습니다. 계속하려면 ‘다음’을 클릭하고, 설치 마법사를 끝내려면 ‘취소’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>제외 목록</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>이 공유 링크를 삭제하시겠습니까?\n링크를 가진 사람이 더 이상 파일을 열 수 없게 됩니다.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>이 컴퓨터에 설치된 Quillmere 버전이 오래되어 서버와 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 설치 프로그램</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>로그인 실패</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>연결을 테스트하는 중...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>서버의 인증서를 신뢰할 수 없습니다. 인증서가 만료되었거나, 다른 서버의 인증서이거나, 발급자를 알 수 없는 인증서일 수 있습니다. 보내는 데이터를 다른 사람이 읽을 수도 있습니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>새 공유 폴더</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Quillmere 정보</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>아래 설정을 확인한 다음 ‘완료’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>설치 마법사에서 제거를 시작할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>이 컴퓨터는 이미 이 서버에 연결되어 있습니다. 기존 연결을 편집하거나 다른 서버를 입력하십시오.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>다운로드 기록</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>서버와의 통신이 끊어졌습니다. 네트워크 연결을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>서버의 인증서를 검증할 수 없습니다.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>흑백 트레이 아이콘 사용</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>이 폴더의 파일이 서버와 동기화됩니다.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>프록시 서버 인증 필요</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>제외할 파일</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>권한 없음</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>서버에 설치된 Quillmere 버전이 오래되어 이 컴퓨터와 함께 사용할 수 없습니다. 서버 관리자에게 Quillmere 업그레이드를 요청하십시오.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>설치 프로그램은 언제든지 다시 실행할 수 있습니다. 설치 마법사를 끝내려면 ‘완료’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>서버와의 연결이 불안정합니다.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>더 최신 버전의 Quillmere 프로그램이 이미 설치되어 있습니다. 이 버전을 설치하려면 먼저 최신 버전을 제거하십시오.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>[ProductName] 설치를 복구하려면 ‘복구’를 클릭하십시오. 선택 사항을 검토하려면 ‘뒤로’를 클릭하고, 설치 마법사를 끝내려면 ‘취소’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>일부 설정이 저장되지 않았습니다. 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>파일의 오버레이 아이콘</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>이 폴더는 다른 동기화 프로그램에서 이미 사용 중입니다. 충돌을 방지하려면 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>호환되지 않는 버전</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>동기화 폴더 변경</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>폴더 경로 없이 전체 파일 이름을 입력하십시오(예: thumbs.db).</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]오류로 인해 설치 프로그램이 중단되었습니다. 설치 프로그램에서 변경한 내용은 원래대로 되돌려졌습니다.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>설치 마법사가 컴퓨터에 [ProductName] 프로그램을 설치합니다. 계속하려면 ‘다음’을 클릭하고, 설치 마법사를 끝내려면 ‘취소’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>동기화 문제</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>다음 사용권 계약을 주의 깊게 읽어 보십시오.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>폴더가 비어 있지 않음</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>암호화된 연결(TLS) 사용</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>업데이트해야 하는 파일 중 일부가 사용 중입니다.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Quillmere 새 버전을 사용할 수 있습니다. 업그레이드하려면 여기를 클릭하십시오.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>‘%1’ 파일의 다운로드가 취소되었습니다.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>입력한 값이 올바르지 않습니다. 값을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>이 파일에는 아직 이전 버전이 없습니다. 파일을 변경하고 동기화하면 이전 버전이 만들어집니다.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>연결 끊기</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Quillmere 준비 중...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>동기화 일시 중지</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>병합 모드</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere 준비가 완료되었습니다.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>이 버전을 다운로드할 수 없습니다. 서버와의 연결을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>설정을 적용하는 중...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>동기화에서 제외할 파일</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>만든 시간</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>서버에서 Quillmere 서비스가 꺼져 있습니다. 서버 관리자에게 서비스를 켜 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>인터넷</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>동기화할 공유 폴더 선택</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]제거(&amp;M)</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>업로드 중...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>선택적 동기화를 사용하려면 서버 관리자에게 서버에 설치된 Quillmere 업그레이드를 요청하십시오.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>변경된 설정이 없습니다.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]사용 중인 파일</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>누락되었거나 손상된 파일과 바로 가기를 복원하여 [ProductName] 설치의 오류를 복구합니다.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>제외할 파일 확장자</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>동기화가 일시 중지되었습니다.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 마법사에 다시 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>동기화 폴더가 있는 드라이브가 마운트되지 않았습니다. 드라이브를 마운트한 다음 동기화를 재개하십시오. 폴더는 ‘동기화 작업’에서 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>동기화 폴더가 있는 드라이브가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>프록시 서버 주소</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>다시 시도(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>무시(&amp;I)</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>같은 이름의 폴더가 이미 이 컴퓨터에 있습니다. 이 폴더의 파일을 서버의 파일과 병합하시겠습니까?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere 프로그램은 컴퓨터와 서버 간에 파일을 항상 동기화된 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>설치된 기능 변경</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Quillmere에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>복구(&amp;R)</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Quillmere 업그레이드 중...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>동기화 모드</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>도메인 이름, IP 주소 또는 서버 ID를 입력하십시오.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>이 파일의 공유 링크를 만들 수 없습니다. 서버와의 연결을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>동기화 중인 파일: %1개</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>다시 연결</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>내 파일을 어디서나 동기화</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>대상 위치</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>설치 마법사에서 선택한 변경 작업을 수행하고 있습니다.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>시스템 기본값</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>선택을 해제한 폴더와 파일은 이 컴퓨터에서 제거됩니다. 서버에는 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>선택한 변경 작업을 설치 프로그램에서 모두 완료했습니다. 설치 마법사를 끝내려면 ‘완료’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>컴퓨터에서 [ProductName] 프로그램을 제거하려면 ‘제거’를 클릭하십시오. 선택 사항을 검토하려면 ‘뒤로’를 클릭하고, 설치 마법사를 끝내려면 ‘취소’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>남은 공간 없음</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>연결 끊김</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>서버에 할당된 공간을 모두 사용했습니다.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>서버 연결을 끊으시겠습니까?\n파일은 이 컴퓨터와 서버에 유지되지만 더 이상 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>중계 서비스에 문제가 있습니다. 나중에 다시 시도하거나 IP 주소로 서버에 연결하십시오.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>서버 ID</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>제외할 파일 이름</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>서버 주소</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>동기화 폴더가 있는 드라이브가 가득 찼습니다. 동기화를 계속하려면 이 드라이브의 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>동기화할 폴더</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>동기화 폴더 선택</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>연결 설정</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>선택적 동기화</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>컴퓨터</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>서버에 할당된 공간을 모두 사용했습니다. 필요 없는 파일을 삭제하거나 서버 관리자에게 공간을 늘려 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>[ProductName] 프로그램을 시작한 후에는 시스템 트레이에서 찾을 수 있습니다.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>응용 프로그램을 열어 두고 나중에 컴퓨터 다시 시작(&amp;L)</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>다음 프록시 서버 사용</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>이 파일이 이 컴퓨터와 서버에서 각각 변경되었습니다. 두 복사본은 같은 폴더에 서로 다른 이름으로 저장되어 있습니다. 두 복사본을 비교한 다음 필요한 것을 보관하십시오.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>모든 파일을 나만의 서버에 보관하고 모든 컴퓨터에서 사용</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>데스크톱 알림 표시</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>다음 응용 프로그램이 설치 프로그램에서 업데이트해야 하는 파일을 사용하고 있습니다. 응용 프로그램을 닫은 다음 ‘다시 시도’를 클릭하십시오. 닫지 않고 계속하려면 ‘무시’를 클릭하십시오. 설치 프로그램을 끝내려면 ‘끝내기’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>서버에 연결할 수 없습니다. 네트워크 연결과 서버 주소를 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>로컬 동기화 폴더</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>이 목록의 항목과 일치하는 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>연결 편집...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>다음 응용 프로그램이 설치 프로그램에서 업데이트해야 하는 파일을 사용하고 있습니다. 설치 프로그램에서 이 응용 프로그램을 닫을지 선택하십시오. 열어 두면 설치 프로그램 작업을 완료하기 위해 컴퓨터를 다시 시작해야 합니다.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>설치 마법사에서 복구를 시작할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Quillmere 열기</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>새 언어 설정을 적용하려면 %1 프로그램을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>제외된 파일에 오버레이 아이콘 표시</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>불러오는 중...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>동기화할 수 있는 공유 폴더 수가 한도(%1개)에 도달했습니다. 다른 공유 폴더를 추가하려면 먼저 공유 폴더 하나의 동기화를 중지하십시오.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>이 동기화 작업을 제거하시겠습니까?\n이 작업의 파일은 이 컴퓨터와 서버에 유지되지만 더 이상 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Quillmere 시작 중...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere 프로그램을 업그레이드할 수 없습니다. 이전 버전은 그대로 유지되었습니다. 컴퓨터를 다시 시작한 다음 다시 시도하십시오. 자세한 내용은 ‘~/.Quillmere/log’에 있습니다.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>점으로 시작하는 이름 제외</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>서버에 사용 가능한 디스크 공간이 없습니다. 서버 관리자에게 공간을 확보해 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]사용권 계약</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>‘%1’ 파일을 다운로드했습니다.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>이 파일의 버전 목록을 가져올 수 없습니다. 서버와의 연결을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>서버에 연결되었습니다.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 프로그램 작업이 완료됨</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>로컬 네트워크</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>프록시 서버 사용 안 함</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>공유 폴더를 찾을 수 없음</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>다음(&amp;N)</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>‘%1’ 파일을 다운로드할 수 없습니다. 서버와의 연결을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>파일 변경을 감시하는 중...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Quillmere 설정</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>공유 링크를 삭제할 수 없습니다. 서버와의 연결을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>서버의 인증서를 검증할 수 없습니다. 인증서가 만료되었거나, 다른 서버의 인증서이거나, 발급자를 알 수 없는 인증서일 수 있습니다. 서버 관리자에게 인증서 확인을 요청하십시오.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>이 서버는 이 컴퓨터가 연결되어 있던 서버가 아닙니다. 서버 주소를 확인하거나 다시 연결하십시오.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] 설치에는 개별적으로 변경할 수 있는 기능이 없습니다.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>프록시 서버의 주소 또는 포트를 입력하지 않았습니다. 둘 다 입력한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>사용자 이름을 입력하지 않았습니다. 사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>공유 링크 삭제</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>사용권 계약의 조건에 동의합니다(&amp;A)</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>업데이트됨: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>연결 관리</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>다른 서버에 연결...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>오버레이 아이콘 표시</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 변경 사항 적용 중</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>서비스 꺼짐</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>동기화</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>이 공유 폴더의 동기화를 중지하시겠습니까?\n이 컴퓨터에 이미 있는 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>설치(&amp;I)</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>제외할 파일</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>상태 세부 정보</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>사용권 계약의 조건에 동의하지 않습니다(&amp;D)</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>문제가 발생했습니다. 다시 시도하고, 문제가 계속되면 서버 관리자에게 문의하십시오. 자세한 내용은 ‘~/.Quillmere/log’에 있습니다.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>트레이 아이콘</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>이 폴더는 읽기 전용입니다. 쓸 수 있는 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>프록시 설정</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>관리자로 로그인하지 않았으므로 Quillmere 설치가 완전하지 않을 수 있습니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>트레이 아이콘에서 언제든지 동기화 상태를 확인하거나 설정을 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>공유 링크 생성됨</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>사용자 이름 또는 암호가 올바르지 않습니다. 둘 다 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 복구 준비 완료</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>이제 ‘%1’ 공유 폴더를 사용할 수 있습니다. 동기화하려면 여기를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>연결 정보</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>설치할 기능을 선택할 수 있습니다.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>폴더 이름</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>폴더가 마운트 지점임</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>다른 폴더 선택...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>다운로드 전용</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]복구(&amp;R)</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>제거(&amp;M)</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>최대 파일 크기</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>서버 주소와 서버에서 사용하는 계정을 입력하십시오.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>이 서버 주소에 다른 서버가 있습니다.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>서버에 연결하는 중...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>공유 링크 만들기</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>서버에서 사용자 이름 또는 암호를 거부했습니다. 연결을 편집하여 다시 입력하십시오.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>최근 업데이트된 파일</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>시스템 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>폴더 변경...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드 중...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>파일 잠김</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비 중...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>파일을 동기화하는 중...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 설치 준비 완료</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>사용자 이름과 암호를 확인하는 중...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>설치 마법사가 [ProductName] 변경 사항을 적용하는 동안 기다려 주십시오. 몇 분 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>관리</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>서버 ID가 올바르지 않습니다. 서버 ID를 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>동기화 폴더 열기</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>트레이 아이콘을 두 번 클릭할 때</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>이 공유 폴더의 동기화를 켤 수 없습니다. 서버에서의 권한을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>서버에서 중계를 통한 파일 공유가 꺼져 있습니다. 서버 관리자에게 이 기능을 켜 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>동기화 재개</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>끝내기(&amp;X)</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>공유 링크가 클립보드에 복사되었습니다.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>로컬 동기화 폴더를 찾을 수 없습니다. 폴더를 복원하거나 다른 폴더를 선택하십시오. 경로는 ‘동기화 작업’에서 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Quillmere 업그레이드</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>동기화 작업 추가...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>공유 폴더가 서버에 마운트되지 않았습니다. 서버 관리자에게 마운트를 요청하십시오. 이름은 ‘공유 폴더’에서 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>서버에서 예기치 않은 응답을 보냈습니다. 이 컴퓨터의 Quillmere 프로그램을 업그레이드하고, 서버 관리자에게 서버의 Quillmere 업그레이드를 요청하십시오. 자세한 내용은 ‘~/.Quillmere/log’에 있습니다.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>서버 개요</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>문제가 발생하여 동기화가 중지되었습니다. 자세한 내용을 보려면 여기를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>%1 MB 이하의 크기를 입력하십시오.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>파일을 확인하는 중...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>동기화를 시도하는 중...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>[ProductName] 설치를 시작하려면 ‘설치’를 클릭하십시오. 선택 사항을 검토하려면 ‘뒤로’를 클릭하고, 설치 마법사를 끝내려면 ‘취소’를 클릭하십시오.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 프로그램 작업이 취소됨</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>폴더가 비어 있지 않습니다. 폴더의 파일을 서버의 파일과 병합하거나 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>이 폴더의 색인을 만드는 중입니다. 색인이 완료되면 파일이 표시됩니다.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>이 공유 폴더의 파일을 열 수는 있지만 변경 내용은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>네트워크 설정</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>이 폴더는 이미 다른 공유 폴더와 동기화되고 있습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>서버에 사용 가능한 디스크 공간이 없습니다.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>서버 ID를 통한 중계</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>원하는 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 프로그램 작업이 완료되지 않음</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere 프로그램이 이미 실행 중입니다.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>환영합니다</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>이 컴퓨터에 로그인할 때 Quillmere 시작</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>두 폴더의 모든 파일이 유지됩니다. 파일의 두 버전이 서로 다르면 두 버전이 모두 서로 다른 이름으로 유지됩니다.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>설치 복구</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>동기화 켜짐</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere 프로그램을 시작할 수 없습니다. 컴퓨터를 다시 시작한 다음 Quillmere 프로그램을 다시 시작하십시오. 자세한 내용은 ‘~/.Quillmere/log’에 있습니다.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>[ProductName] 설치 프로그램의 작업을 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>그래도 계속</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 변경, 복구 또는 제거</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere 설정 완료</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>이전 버전 찾아보기...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]변경(&amp;C)</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>이 컴퓨터와 서버의 연결이 끊겨 있습니다. 동기화를 계속하려면 다시 연결하십시오.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>감지 중...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>인증서 경고</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>중계 서비스에 연결할 수 없습니다. 인터넷 연결을 확인한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>컴퓨터에서 [ProductName] 프로그램을 제거합니다.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>‘%1’ 다운로드 중...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>완료(&amp;F)</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>읽기 전용 폴더</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]설치 프로그램 작업이 취소되었으며 컴퓨터는 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>포트 번호가 올바르지 않습니다. 1에서 65535 사이의 숫자를 입력하십시오.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere 프로그램은 네트워크 드라이브의 변경을 감시할 수 없습니다. 로컬 드라이브의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>프로그램 제거</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>직접 연결</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>서버에서 이 폴더가 있는 드라이브가 마운트되지 않았습니다. 서버 관리자에게 마운트를 요청하십시오. 폴더는 ‘동기화 작업’에서 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>이 버전의 Quillmere 프로그램이 이미 설치되어 있습니다. 다시 설치하시겠습니까?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>이 컴퓨터에 설치된 Quillmere 버전이 오래되어 서버와 함께 사용할 수 없습니다. 업그레이드한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>서버에 설치된 Quillmere 버전이 오래되어 이 컴퓨터와 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>꺼짐</translation>
    </message>
</context>
</TS>
