<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Vítá vás průvodce instalací programu [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Spustit nyní program [ProductName]</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Sdílené složky</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Všechny soubory jsou aktuální.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Zpracování...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Průvodce instalací je připraven zahájit instalaci.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Režim připojení</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>Místní databáze je poškozená. Chcete-li databázi znovu vytvořit, odpojte se od serveru a poté se k němu znovu připojte. Podrobnosti najdete v ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Zavřít aplikace a po provedení změn je znovu spustit</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>Složka je přípojným bodem. Vyberte složku, která není přípojným bodem.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Připraveno k odstranění programu [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>Server byl vyměněn. Kliknutím sem se znovu připojíte.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Počet právě synchronizovaných souborů: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Průvodce instalací umožňuje změnit, opravit nebo odstranit program [ProductName]. Pokračujte kliknutím na tlačítko „Další“, nebo průvodce instalací ukončete tlačítkem „Zrušit“.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Seznam vyloučení</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Smazat tento odkaz ke sdílení?\nLidé, kteří odkaz mají, už nebudou moci soubor otevřít.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Program Quillmere v tomto počítači je pro práci se serverem příliš starý.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Průvodce instalací programu [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Přihlášení se nezdařilo</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Certifikát serveru není důvěryhodný: mohla vypršet jeho platnost, může patřit jinému serveru nebo pocházet od neznámého vydavatele. Odesílaná data mohou číst i jiné osoby. Pokračovat?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nová sdílená složka</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>O programu Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Zkontrolujte níže uvedená nastavení a poté klikněte na tlačítko „Hotovo“.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Tisk</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>Průvodce instalací je připraven zahájit odstranění.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Tento počítač už je k tomuto serveru připojen. Upravte stávající připojení nebo zadejte jiný server.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historie stahování</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Spojení se serverem bylo přerušeno. Zkontrolujte síťové připojení a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Certifikát serveru se nepodařilo ověřit.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Používat černobílou ikonu v oznamovací oblasti</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Soubory v této složce se budou synchronizovat se serverem.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>Proxy server vyžaduje přihlášení</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Úlohy synchronizace</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Vyloučené soubory</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Chybí oprávnění</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Program Quillmere na serveru je pro práci s tímto počítačem příliš starý. Požádejte správce serveru o aktualizaci programu.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>Instalační program můžete kdykoli spustit znovu. Průvodce instalací ukončíte kliknutím na tlačítko „Dokončit“.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>Spojení se serverem je nestabilní.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Novější verze programu Quillmere už je nainstalována. Chcete-li nainstalovat tuto verzi, nejprve odstraňte novější.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Kliknutím na tlačítko „Opravit“ opravíte instalaci programu [ProductName]. Tlačítkem „Zpět“ se vrátíte ke svým volbám, tlačítkem „Zrušit“ průvodce instalací ukončíte.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Některá nastavení nebyla uložena. Uložit je?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Překryvné ikony na souborech</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Tuto složku už používá jiný synchronizační program. Vyberte jinou složku, aby nedocházelo ke konfliktům.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Smazat</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Nekompatibilní verze</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Změna synchronizované složky</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Zadejte úplný název souboru bez cesty ke složce, například thumbs.db.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Instalační program se zastavil kvůli chybě. Provedené změny byly vráceny zpět.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Čekání</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Průvodce instalací nainstaluje program [ProductName] do tohoto počítače. Pokračujte kliknutím na tlačítko „Další“, nebo průvodce instalací ukončete tlačítkem „Zrušit“.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problém se synchronizací</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Pečlivě si přečtěte následující licenční smlouvu.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Složka není prázdná</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Používat šifrované spojení (TLS)</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Některé soubory, které je třeba aktualizovat, se používají.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ano</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Je k dispozici nová verze programu Quillmere. Kliknutím sem program aktualizujete.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Stahování souboru „%1“ bylo zrušeno.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>Zadaná hodnota není platná. Zkontrolujte ji a zkuste to znovu.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Tento soubor zatím nemá žádné starší verze. Verze vznikne, až soubor změníte a necháte ho synchronizovat.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Odpojit</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Inicializace programu Quillmere...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Spustit nyní</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pozastavit synchronizaci</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Režim slučování</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Program Quillmere je připraven.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Tuto verzi se nepodařilo stáhnout. Zkontrolujte spojení se serverem a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Uplatňování nastavení...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Soubory vyloučené ze synchronizace</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Služba Quillmere je na serveru vypnutá. Požádejte správce serveru o její zapnutí.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Vyberte sdílené složky k synchronizaci</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Odst&amp;ranit</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Odesílání...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Chcete-li používat výběrovou synchronizaci, požádejte správce serveru o aktualizaci programu Quillmere na serveru.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Žádná nastavení nebyla změněna.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Používané soubory</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Opraví chyby v instalaci programu [ProductName] obnovením chybějících nebo poškozených souborů a zástupců.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Vyloučené přípony souborů</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>Synchronizace je pozastavena.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Znovu vás vítá průvodce instalací programu [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>Disk se synchronizovanou složkou není připojen. Připojte disk a poté pokračujte v synchronizaci. Složku najdete na stránce „Úlohy synchronizace“.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>Disk se synchronizovanou složkou je plný.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Adresa proxy serveru</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opakovat</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorovat</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Složka s tímto názvem už v tomto počítači existuje. Sloučit její soubory se soubory na serveru?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Program Quillmere synchronizuje vaše soubory mezi počítači a vaším serverem.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Změnit nainstalované součásti</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Vítá vás program Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Opravit</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Aktualizace programu Quillmere...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Režim synchronizace</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Zadejte název domény, IP adresu nebo ID serveru.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Odkaz ke sdílení tohoto souboru se nepodařilo vytvořit. Zkontrolujte spojení se serverem a zkuste to znovu.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Právě synchronizované soubory: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Připojit znovu</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Vaše soubory všude synchronizované</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>Průvodce instalací provádí zvolené změny.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Výchozí jazyk systému</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>Složky a soubory se zrušeným zaškrtnutím budou z tohoto počítače odstraněny. Na serveru zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Všechny zvolené změny byly provedeny. Průvodce instalací ukončíte kliknutím na tlačítko „Dokončit“.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Kliknutím na tlačítko „Odstranit“ odstraníte program [ProductName] z tohoto počítače. Tlačítkem „Zpět“ se vrátíte ke svým volbám, tlačítkem „Zrušit“ průvodce instalací ukončíte.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Nedostatek místa</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Odpojeno</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>Vaše místo na serveru je zcela vyčerpáno.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Odpojit se od serveru?\nVaše soubory zůstanou v tomto počítači i na serveru, ale už se nebudou synchronizovat.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>U předávací služby došlo k problému. Zkuste to znovu později nebo se k serveru připojte pomocí jeho IP adresy.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID serveru</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Vyloučené názvy souborů</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adresa serveru</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>Disk se synchronizovanou složkou je plný. Uvolněte na něm místo, aby synchronizace mohla pokračovat.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Složky k synchronizaci</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Vyberte synchronizovanou složku</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Nastavení připojení</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Výběrová synchronizace</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Počítač</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>Vaše místo na serveru je zcela vyčerpáno. Smažte nepotřebné soubory nebo požádejte správce serveru o více místa.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Po spuštění najdete program [ProductName] v oznamovací oblasti.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Nechat aplikace spuštěné a restartovat počítač později</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Používat následující proxy server</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Tento soubor byl změněn v tomto počítači i na serveru. Obě kopie jsou ve stejné složce pod různými názvy. Porovnejte je a poté si ponechte tu, kterou potřebujete.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Všechny vaše soubory v každém počítači, uložené na vašem vlastním serveru</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Zobrazovat oznámení na ploše</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>Následující aplikace používají soubory, které instalační program potřebuje aktualizovat. Zavřete tyto aplikace a poté klikněte na tlačítko „Opakovat“. Chcete-li pokračovat bez jejich zavření, klikněte na tlačítko „Ignorovat“. Chcete-li instalační program opustit, klikněte na tlačítko „Ukončit“.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>Server není dostupný. Zkontrolujte síťové připojení a adresu serveru a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Místní synchronizovaná složka</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Soubory odpovídající položkám v tomto seznamu se nesynchronizují.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Upravit připojení...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Následující aplikace používají soubory, které instalační program potřebuje aktualizovat. Zvolte, zda má instalační program tyto aplikace zavřít. Pokud zůstanou spuštěné, bude k dokončení změn nutné restartovat počítač.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>Průvodce instalací je připraven zahájit opravu.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Otevřít program Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Chcete-li použít nové nastavení jazyka, restartujte program %1.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Zobrazovat překryvné ikony na vyloučených souborech</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Bylo dosaženo nejvyššího počtu synchronizovaných sdílených složek: %1. Než přidáte další, ukončete synchronizaci některé sdílené složky.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Odstranit tuto úlohu synchronizace?\nJejí soubory zůstanou v tomto počítači i na serveru, ale už se nebudou synchronizovat.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Spouštění programu Quillmere...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Aktualizace programu Quillmere se nezdařila. Dosavadní verze zůstala zachována. Restartujte počítač a zkuste to znovu. Podrobnosti najdete v ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Vyloučit názvy začínající tečkou</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>Na serveru není volné místo na disku. Požádejte správce serveru o uvolnění místa.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Licenční smlouva</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Soubor „%1“ byl stažen.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>Seznam verzí tohoto souboru se nepodařilo získat. Zkontrolujte spojení se serverem a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Připojeno k serveru.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}Průvodce instalací programu [ProductName] dokončil práci</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Místní síť</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Nepoužívat proxy server</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Sdílená složka nenalezena</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Další</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Soubor „%1“ se nepodařilo stáhnout. Zkontrolujte spojení se serverem a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Sledování změn souborů...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Sdílená složka</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Nastavení programu Quillmere</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>Odkaz ke sdílení se nepodařilo smazat. Zkontrolujte spojení se serverem a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Certifikát serveru se nepodařilo ověřit: mohla vypršet jeho platnost, může patřit jinému serveru nebo pocházet od neznámého vydavatele. Požádejte správce serveru o kontrolu certifikátu.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Toto není server, ke kterému byl tento počítač připojen. Zkontrolujte adresu serveru nebo se znovu připojte.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>Program [ProductName] nemá žádné součásti, které by bylo možné měnit samostatně.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Chybí adresa nebo port proxy serveru. Zadejte obojí a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy server</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Chybí uživatelské jméno. Zadejte uživatelské jméno.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Smazat odkaz</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>&amp;Souhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Aktualizováno: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Spravovat připojení</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Připojit k jinému serveru...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Zobrazovat překryvné ikony</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Provádění změn v programu [ProductName]</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Služba je vypnutá</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizovat</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Ukončit synchronizaci této sdílené složky?\nSoubory, které už v tomto počítači jsou, zůstanou zachovány.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalovat</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Soubory k vyloučení</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Podrobnosti o stavu</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;Nesouhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Něco se pokazilo. Zkuste to znovu, a pokud problém přetrvá, obraťte se na správce serveru. Podrobnosti najdete v ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Ikony v oznamovací oblasti</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>Složka je jen pro čtení. Vyberte složku, do které můžete zapisovat.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Nastavení proxy serveru</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>Nepracujete pod účtem správce, takže se program Quillmere nemusí nainstalovat úplně. Pokračovat?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Pomocí ikony v oznamovací oblasti můžete kdykoli zobrazit stav synchronizace nebo změnit nastavení.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Odkaz ke sdílení vytvořen</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>Uživatelské jméno nebo heslo není správné. Zkontrolujte obojí a zkuste to znovu.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Připraveno k opravě programu [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>Sdílená složka „%1“ je nyní k dispozici. Kliknutím sem ji začnete synchronizovat.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stav:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informace o připojení</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Umožňuje zvolit, které součásti se nainstalují.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Název složky</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>Složka je přípojným bodem</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Vybrat jinou složku...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Jen stahovat</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Opravit</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Odst&amp;ranit</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximální velikost souboru</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Zadejte adresu serveru a účet, který na serveru používáte.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>Na adrese serveru byl nalezen jiný server.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Připojování k serveru...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Vytvořit odkaz ke sdílení</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>Server nepřijal uživatelské jméno nebo heslo. Upravte připojení a jméno i heslo zadejte znovu.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nedávno aktualizované soubory</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Používat systémové nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Změnit složku...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Soubor uzamčen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Synchronizace souborů...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Připraveno k instalaci programu [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Ověřování uživatelského jména a hesla...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Počkejte, než průvodce instalací provede změny v programu [ProductName]. Může to trvat několik minut.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Spravovat</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>ID serveru není platné. Zkontrolujte ID serveru a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Otevřít synchronizovanou složku</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Po dvojitém kliknutí na ikonu v oznamovací oblasti</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>Synchronizaci této sdílené složky se nepodařilo zapnout. Zkontrolujte svá oprávnění na serveru a zkuste to znovu.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Sdílení souborů přes předávací službu je na serveru vypnuté. Požádejte správce serveru o jeho zapnutí.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Pokračovat v synchronizaci</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Ukončit</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>Odkaz ke sdílení byl zkopírován do schránky.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>Místní synchronizovaná složka nebyla nalezena. Obnovte ji nebo vyberte jinou. Cestu ke složce najdete na stránce „Úlohy synchronizace“.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Aktualizace programu Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Přidat úlohu...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>Sdílená složka není na serveru připojena. Požádejte správce serveru o její připojení. Název složky najdete na stránce „Sdílené složky“.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>Server odeslal neočekávanou odpověď. Aktualizujte program Quillmere v tomto počítači a požádejte správce serveru o aktualizaci programu na serveru. Podrobnosti najdete v ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Přehled serveru</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>Synchronizace se kvůli problému zastavila. Kliknutím sem zobrazíte podrobnosti.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Zadejte velikost nejvýše %1&#xa0;MB.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrola souborů...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Pokus o synchronizaci...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Kliknutím na tlačítko „Instalovat“ zahájíte instalaci programu [ProductName]. Tlačítkem „Zpět“ se vrátíte ke svým volbám, tlačítkem „Zrušit“ průvodce instalací ukončíte.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Průvodce instalací programu [ProductName] byl předčasně ukončen</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>Složka není prázdná. Slučte její soubory se soubory na serveru nebo vyberte jinou složku.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Tato složka se indexuje. Její soubory se zobrazí po dokončení indexování.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Soubory v této sdílené složce můžete otevírat, ale provedené změny se na server neodesílají.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nastavení sítě</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Tato složka se už synchronizuje s jinou sdílenou složkou. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>Na serveru není volné místo na disku.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Předávání podle ID serveru</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Zvolte, co chcete udělat.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}Průvodce instalací programu [ProductName] nedokončil práci</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Program Quillmere už je spuštěn.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Vítejte</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Spouštět program Quillmere po přihlášení k tomuto počítači</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Zachovají se všechny soubory z obou složek. Pokud se dvě verze souboru liší, zachovají se obě pod různými názvy.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Opravit instalaci</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Synchronizace zapnuta</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Program Quillmere se nepodařilo spustit. Restartujte počítač a poté program Quillmere spusťte znovu. Podrobnosti najdete v ~/.Quillmere/log.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Předčasně ukončit průvodce instalací programu [ProductName]?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Přesto pokračovat</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Změna, oprava nebo odstranění programu [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Program Quillmere je nastaven</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Pokročilá nastavení</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Procházet verze...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Z&amp;měnit</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>Tento počítač je odpojen od serveru. Chcete-li pokračovat v synchronizaci, znovu se připojte.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Zjišťování...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Varování ohledně certifikátu</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>Předávací služba není dostupná. Zkontrolujte připojení k internetu a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Odstraní program [ProductName] z tohoto počítače.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Stahování souboru „%1“...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Dokončit</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Složka jen pro čtení</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Průvodce instalací byl předčasně ukončen a v počítači nebyly provedeny žádné změny.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Číslo portu není platné. Zadejte číslo od 1 do 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Program Quillmere nemůže sledovat změny na síťovém disku. Vyberte složku na místním disku.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Odstranit program</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Přímé připojení</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>Disk s touto složkou není na serveru připojen. Požádejte správce serveru o připojení disku. Složku najdete na stránce „Úlohy synchronizace“.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Tato verze programu Quillmere už je nainstalována. Nainstalovat ji znovu?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Program Quillmere v tomto počítači je pro práci se serverem příliš starý. Aktualizujte program a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Program Quillmere na serveru je pro práci s tímto počítačem příliš starý.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Vypnuto</translation>
    </message>
</context>
</TS>
