<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Witamy w kreatorze instalacji programu [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Uruchom teraz program [ProductName]</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Foldery udostępnione</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Wszystkie pliki są aktualne.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Przetwarzanie...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Kreator instalacji jest gotowy do rozpoczęcia instalacji.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Tryb połączenia</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>Lokalna baza danych jest uszkodzona. Rozłącz się z serwerem, a następnie połącz się ponownie, aby odbudować bazę danych. Szczegóły znajdują się w ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Zamknij aplikacje i uruchom je ponownie po zakończeniu pracy instalatora</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>Ten folder jest punktem montowania. Wybierz folder, który nie jest punktem montowania.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Wszystko gotowe do usunięcia programu [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Serwer został zastąpiony innym. Kliknij tutaj, aby połączyć się ponownie.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Liczba obecnie synchronizowanych plików: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Kreator instalacji umożliwia zmianę, naprawę lub usunięcie programu [ProductName]. Kliknij przycisk „Dalej”, aby kontynuować, lub przycisk „Anuluj”, aby zamknąć kreator instalacji.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Lista wykluczeń</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Czy usunąć ten link udostępniania?\nOsoby, które mają ten link, nie będą już mogły otworzyć pliku.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Program Quillmere na tym komputerze jest za stary, aby współpracować z serwerem.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalator programu [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Logowanie nie powiodło się</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testowanie połączenia...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Certyfikat serwera nie jest zaufany: mógł wygasnąć, może należeć do innego serwera lub pochodzić od nieznanego wystawcy. Inne osoby mogą odczytać wysyłane dane. Czy kontynuować?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nowy folder udostępniony</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>O programie Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Sprawdź poniższe ustawienia, a następnie kliknij przycisk „Gotowe”.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Wyd&amp;rukuj</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>Kreator instalacji jest gotowy do rozpoczęcia usuwania.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Ten komputer jest już połączony z tym serwerem. Edytuj istniejące połączenie lub podaj inny serwer.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historia pobierania</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Połączenie z serwerem zostało utracone. Sprawdź połączenie sieciowe, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Nie udało się zweryfikować certyfikatu serwera.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Używaj czarno-białej ikony w zasobniku systemowym</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Pliki w tym folderze będą synchronizowane z serwerem.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Serwer proxy wymaga logowania</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Wykluczone pliki</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Brak uprawnień</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Program Quillmere na serwerze jest za stary, aby współpracować z tym komputerem. Poproś administratora serwera o uaktualnienie programu.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Instalator możesz uruchomić ponownie w dowolnej chwili. Kliknij przycisk „Zakończ”, aby zamknąć kreator instalacji.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>Połączenie z serwerem jest niestabilne.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Nowsza wersja programu Quillmere jest już zainstalowana. Aby zainstalować tę wersję, najpierw usuń nowszą.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Kliknij przycisk „Napraw”, aby naprawić instalację programu [ProductName]. Kliknij przycisk „Wstecz”, aby przejrzeć wybrane opcje, lub przycisk „Anuluj”, aby zamknąć kreator instalacji.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Niektóre ustawienia nie zostały zapisane. Czy je zapisać?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Nakładki na ikonach plików</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Działanie</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Ten folder jest już używany przez inny program do synchronizacji. Wybierz inny folder, aby uniknąć konfliktów.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Niezgodna wersja</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Zmiana folderu synchronizacji</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Wpisz pełną nazwę pliku bez ścieżki do folderu, na przykład thumbs.db.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Instalator zatrzymał się z powodu błędu. Wprowadzone zmiany cofnięto.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Kreator instalacji zainstaluje program [ProductName] na tym komputerze. Kliknij przycisk „Dalej”, aby kontynuować, lub przycisk „Anuluj”, aby zamknąć kreator instalacji.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problem z synchronizacją</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Przeczytaj uważnie poniższą umowę licencyjną.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Folder nie jest pusty</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Używaj szyfrowanego połączenia (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Niektóre pliki, które trzeba zaktualizować, są w użyciu.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Dostępna jest nowa wersja programu Quillmere. Kliknij tutaj, aby uaktualnić program.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Anulowano pobieranie pliku „%1”.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>Podana wartość jest nieprawidłowa. Sprawdź ją, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Ten plik nie ma jeszcze wcześniejszych wersji. Aby utworzyć wersję, zmień plik i poczekaj na jego synchronizację.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Rozłącz</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Inicjowanie programu Quillmere...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Rozpocznij teraz</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Wstrzymaj synchronizację</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Tryb scalania</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Program Quillmere jest gotowy.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Nie udało się pobrać tej wersji. Sprawdź połączenie z serwerem, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Stosowanie ustawień...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Pliki wykluczone z synchronizacji</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Usługa Quillmere jest wyłączona na serwerze. Poproś administratora serwera o jej włączenie.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Wybierz foldery udostępnione do synchronizacji</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Usuń</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wysyłanie...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Aby korzystać z synchronizacji selektywnej, poproś administratora serwera o uaktualnienie programu Quillmere na serwerze.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Nie zmieniono żadnych ustawień.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Pliki w użyciu</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Naprawia błędy instalacji programu [ProductName], przywracając brakujące lub uszkodzone pliki i skróty.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Wykluczone rozszerzenia plików</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>Synchronizacja jest wstrzymana.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Witamy ponownie w kreatorze instalacji programu [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>Dysk z folderem synchronizacji nie jest zamontowany. Zamontuj dysk, a następnie wznów synchronizację. Folder jest podany na stronie „Zadania synchronizacji”.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>Dysk z folderem synchronizacji jest pełny.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Adres serwera proxy</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>Z&amp;ignoruj</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Folder o tej nazwie już istnieje na tym komputerze. Czy scalić jego pliki z plikami na serwerze?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Program Quillmere synchronizuje pliki między Twoimi komputerami a Twoim serwerem.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Zmień zainstalowane składniki</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Witamy w programie Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Napraw</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Uaktualnianie programu Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Tryb synchronizacji</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Podaj nazwę domeny, adres IP lub identyfikator serwera.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Nie udało się utworzyć linku udostępniania dla tego pliku. Sprawdź połączenie z serwerem, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Synchronizowane pliki: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Połącz ponownie</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Twoje pliki wszędzie zsynchronizowane</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>Kreator instalacji wprowadza wybrane zmiany.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Domyślny język systemu</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>Odznaczone foldery i pliki zostaną usunięte z tego komputera. Pozostaną na serwerze.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Wprowadzono wszystkie wybrane zmiany. Kliknij przycisk „Zakończ”, aby zamknąć kreator instalacji.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Kliknij przycisk „Usuń”, aby usunąć program [ProductName] z tego komputera. Kliknij przycisk „Wstecz”, aby przejrzeć wybrane opcje, lub przycisk „Anuluj”, aby zamknąć kreator instalacji.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Brak wolnego miejsca</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Rozłączono</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Całe Twoje miejsce na serwerze zostało wykorzystane.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Czy rozłączyć się z serwerem?\nTwoje pliki pozostaną na tym komputerze i na serwerze, ale nie będą już synchronizowane.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Wystąpił problem z usługą przekazywania. Spróbuj ponownie później lub połącz się z serwerem, używając jego adresu IP.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Identyfikator serwera</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Wykluczone nazwy plików</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adres serwera</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>Dysk z folderem synchronizacji jest pełny. Zwolnij na nim miejsce, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Wybierz folder synchronizacji</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Ustawienia połączenia</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Całe Twoje miejsce na serwerze zostało wykorzystane. Usuń niepotrzebne pliki lub poproś administratora serwera o więcej miejsca.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Po uruchomieniu programu [ProductName] jego ikona pojawi się w zasobniku systemowym.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>Pozostaw aplikacje &amp;otwarte i uruchom ponownie komputer później</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Używaj następującego serwera proxy</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Ten plik został zmieniony na tym komputerze i na serwerze. Obie kopie znajdują się w tym samym folderze pod różnymi nazwami. Porównaj je, a następnie zachowaj tę, której potrzebujesz.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Wszystkie Twoje pliki na każdym komputerze, przechowywane na Twoim własnym serwerze</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Pokazuj powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Następujące aplikacje używają plików, które instalator musi zaktualizować. Zamknij te aplikacje, a następnie kliknij przycisk „Ponów”. Aby kontynuować bez ich zamykania, kliknij przycisk „Zignoruj”. Aby opuścić instalator, kliknij przycisk „Zakończ”.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Nie można połączyć się z serwerem. Sprawdź połączenie sieciowe i adres serwera, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokalny folder synchronizacji</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Pliki pasujące do wpisów na tej liście nie są synchronizowane.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Edytuj połączenie...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Następujące aplikacje używają plików, które instalator musi zaktualizować. Wybierz, czy instalator ma zamknąć te aplikacje. Jeśli pozostaną otwarte, do ukończenia pracy instalatora konieczne będzie ponowne uruchomienie komputera.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>Kreator instalacji jest gotowy do rozpoczęcia naprawy.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Otwórz program Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Uruchom ponownie program %1, aby zastosować nowe ustawienia języka.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Pokazuj nakładki na ikonach wykluczonych plików</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wczytywanie...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Osiągnięto limit synchronizowanych folderów udostępnionych: %1. Zanim dodasz kolejny, zatrzymaj synchronizację dowolnego folderu udostępnionego.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Czy usunąć to zadanie synchronizacji?\nJego pliki pozostaną na tym komputerze i na serwerze, ale nie będą już synchronizowane.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Uruchamianie programu Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Nie udało się uaktualnić programu Quillmere. Poprzednia wersja została zachowana. Uruchom ponownie komputer, a następnie spróbuj jeszcze raz. Szczegóły znajdują się w ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Wykluczaj nazwy zaczynające się od kropki</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>Na serwerze nie ma wolnego miejsca na dysku. Poproś administratora serwera o zwolnienie miejsca.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Umowa licencyjna</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Pobrano plik „%1”.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Nie udało się wyświetlić listy wersji tego pliku. Sprawdź połączenie z serwerem, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Połączono z serwerem.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}Instalator programu [ProductName] zakończył pracę</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Sieć lokalna</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Nie używaj serwera proxy</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Nie znaleziono folderu udostępnionego</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Dalej</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Nie udało się pobrać pliku „%1”. Sprawdź połączenie z serwerem, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Śledzenie zmian w plikach...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Folder udostępniony</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Ustawienia programu Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Nie udało się usunąć linku udostępniania. Sprawdź połączenie z serwerem, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Nie udało się zweryfikować certyfikatu serwera: mógł wygasnąć, może należeć do innego serwera lub pochodzić od nieznanego wystawcy. Poproś administratora serwera o sprawdzenie certyfikatu.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>To nie jest serwer, z którym ten komputer był połączony. Sprawdź adres serwera lub połącz się ponownie.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>Program [ProductName] nie ma składników, które można zmieniać osobno.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Brakuje adresu lub portu serwera proxy. Podaj obie wartości, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Brakuje nazwy użytkownika. Podaj nazwę użytkownika.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Usuń link</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>&amp;Akceptuję warunki umowy licencyjnej</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Zaktualizowano: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Zarządzaj połączeniami</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Połącz z innym serwerem...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Pokazuj nakładki na ikonach plików</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Wprowadzanie zmian w programie [ProductName]</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Usługa wyłączona</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizacja</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Czy zatrzymać synchronizację tego folderu udostępnionego?\nPliki znajdujące się już na tym komputerze zostaną zachowane.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Zainstaluj</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Pliki do wykluczenia</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Szczegóły stanu</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;Nie akceptuję warunków umowy licencyjnej</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Wystąpił błąd. Spróbuj ponownie, a jeśli problem będzie się powtarzał, skontaktuj się z administratorem serwera. Szczegóły znajdują się w ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Ikony w zasobniku systemowym</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>Ten folder jest tylko do odczytu. Wybierz folder, w którym możesz zapisywać pliki.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Wstecz</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ustawienia serwera proxy</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Nie zalogowano się jako administrator, więc program Quillmere może nie zostać zainstalowany w całości. Czy kontynuować?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Za pomocą ikony w zasobniku systemowym możesz w każdej chwili sprawdzić stan synchronizacji lub zmienić ustawienia.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Utworzono link udostępniania</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Nazwa użytkownika lub hasło jest nieprawidłowe. Sprawdź obie wartości, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Wszystko gotowe do naprawy programu [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>Folder udostępniony „%1” jest teraz dostępny. Kliknij tutaj, aby go synchronizować.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informacje o połączeniu</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Umożliwia wybranie składników, które mają być zainstalowane.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>Folder jest punktem montowania</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Wybierz inny folder...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Napraw</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksymalny rozmiar pliku</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Podaj adres serwera oraz konto, którego używasz na serwerze.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>Pod adresem serwera znaleziono inny serwer.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Łączenie z serwerem...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Utwórz link udostępniania</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>Serwer nie zaakceptował nazwy użytkownika lub hasła. Edytuj połączenie i wpisz te dane ponownie.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Ostatnio zaktualizowane pliki</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Używaj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Zmień folder...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Plik zablokowany</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Synchronizowanie plików...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Wszystko gotowe do instalacji programu [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Sprawdzanie nazwy użytkownika i hasła...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Poczekaj, aż kreator instalacji wprowadzi zmiany w programie [ProductName]. Może to potrwać kilka minut.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>Identyfikator serwera jest nieprawidłowy. Sprawdź go, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Otwórz folder synchronizacji</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Po dwukrotnym kliknięciu ikony w zasobniku systemowym</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Nie udało się włączyć synchronizacji tego folderu udostępnionego. Sprawdź swoje uprawnienia na serwerze, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Udostępnianie plików przez usługę przekazywania jest wyłączone na serwerze. Poproś administratora serwera o włączenie udostępniania.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Wznów synchronizację</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>Link udostępniania został skopiowany do schowka.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>Nie znaleziono lokalnego folderu synchronizacji. Przywróć folder lub wybierz inny. Ścieżka folderu jest podana na stronie „Zadania synchronizacji”.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Uaktualnianie programu Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Dodaj zadanie...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>Ten folder udostępniony nie jest zamontowany na serwerze. Poproś administratora serwera o zamontowanie folderu. Nazwa folderu jest podana na stronie „Foldery udostępnione”.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>Serwer wysłał nieoczekiwaną odpowiedź. Uaktualnij program Quillmere na tym komputerze i poproś administratora serwera o uaktualnienie programu na serwerze. Szczegóły znajdują się w ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Informacje o serwerze</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>Synchronizacja została zatrzymana z powodu problemu. Kliknij tutaj, aby zobaczyć szczegóły.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Podaj rozmiar nie większy niż %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Sprawdzanie plików...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Próba synchronizacji...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Kliknij przycisk „Zainstaluj”, aby rozpocząć instalację programu [ProductName]. Kliknij przycisk „Wstecz”, aby przejrzeć wybrane opcje, lub przycisk „Anuluj”, aby zamknąć kreator instalacji.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Praca instalatora programu [ProductName] została przerwana</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>Folder nie jest pusty. Scal jego pliki z plikami na serwerze lub wybierz inny folder.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Ten folder jest indeksowany. Jego pliki pojawią się po zakończeniu indeksowania.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Możesz otwierać pliki w tym folderze udostępnionym, ale wprowadzone przez Ciebie zmiany nie są wysyłane na serwer.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ustawienia sieci</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Ten folder jest już synchronizowany z innym folderem udostępnionym. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>Na serwerze nie ma wolnego miejsca na dysku.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Przekazywanie według identyfikatora serwera</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Wybierz, co chcesz zrobić.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}Instalator programu [ProductName] nie ukończył pracy</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Program Quillmere jest już uruchomiony.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Uruchamiaj program Quillmere po zalogowaniu na tym komputerze</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Zachowywane są wszystkie pliki z obu folderów. Jeśli dwie wersje pliku się różnią, obie są zachowywane pod różnymi nazwami.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Napraw instalację</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Synchronizacja włączona</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Nie udało się uruchomić programu Quillmere. Uruchom ponownie komputer, a następnie uruchom program Quillmere jeszcze raz. Szczegóły znajdują się w ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Czy przerwać pracę instalatora programu [ProductName]?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Kontynuuj mimo to</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Zmiana, naprawa lub usunięcie programu [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Program Quillmere jest skonfigurowany</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Przeglądaj wersje...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Z&amp;mień</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Ten komputer został rozłączony z serwerem. Połącz się ponownie, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Wykrywanie...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Ostrzeżenie dotyczące certyfikatu</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Nie można połączyć się z usługą przekazywania. Sprawdź połączenie z internetem, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Usuwa program [ProductName] z tego komputera.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Pobieranie pliku „%1”...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Folder tylko do odczytu</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Praca instalatora została przerwana, a na komputerze nie wprowadzono żadnych zmian.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Numer portu jest nieprawidłowy. Podaj liczbę od 1 do 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Program Quillmere nie może śledzić zmian na dysku sieciowym. Wybierz folder na dysku lokalnym.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Usuń program</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Połączenie bezpośrednie</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>Dysk na serwerze zawierający ten folder nie jest zamontowany. Poproś administratora serwera o zamontowanie tego dysku. Folder jest podany na stronie „Zadania synchronizacji”.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Ta wersja programu Quillmere jest już zainstalowana. Czy zainstalować ją ponownie?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Program Quillmere na tym komputerze jest za stary, aby współpracować z serwerem. Uaktualnij program, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Program Quillmere na serwerze jest za stary, aby współpracować z tym komputerem.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Wyłączone</translation>
    </message>
</context>
</TS>
