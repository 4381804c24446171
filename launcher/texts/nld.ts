<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Welkom bij de installatiewizard van [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>[ProductName] nu starten</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Gedeelde mappen</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle bestanden zijn up-to-date.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Bezig met verwerken...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>De installatiewizard is gereed om met de installatie te beginnen.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Verbindingsmodus</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation>De lokale database is beschadigd. Verbreek de verbinding met de server en maak daarna opnieuw verbinding om de database opnieuw op te bouwen. Meer informatie staat in ‘~/.Quillmere/log’.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>De toepassingen &amp;sluiten en na afloop opnieuw starten</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>De map is een aankoppelpunt. Kies een map die geen aankoppelpunt is.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Gereed om [ProductName] te verwijderen</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation>De server is vervangen. Klik hier om opnieuw verbinding te maken.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Aantal bestanden dat nu wordt gesynchroniseerd: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>Met de installatiewizard kunt u [ProductName] wijzigen, herstellen of verwijderen. Klik op ‘Volgende’ om door te gaan of op ‘Annuleren’ om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation>Uitsluitingslijst</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>Deze deellink verwijderen?\nMensen die de link hebben, kunnen het bestand dan niet meer openen.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation>Quillmere op deze computer is te oud om met de server samen te werken.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installatieprogramma van [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Aanmelden mislukt</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbinding wordt getest...</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation>Het certificaat van de server wordt niet vertrouwd: het kan zijn verlopen, bij een andere server horen of van een onbekende uitgever afkomstig zijn. Anderen kunnen mogelijk de gegevens lezen die u verzendt. Toch doorgaan?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nieuwe gedeelde map</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation>Info over Quillmere</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Controleer de onderstaande instellingen en klik daarna op ‘Gereed’.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Af&amp;drukken</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>De installatiewizard is gereed om met het verwijderen te beginnen.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation>Deze computer is al met deze server verbonden. Bewerk de bestaande verbinding of voer een andere server in.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadgeschiedenis</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>De verbinding met de server is weggevallen. Controleer de netwerkverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation>Het certificaat van de server kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Een zwart-witpictogram in het systeemvak gebruiken</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>De bestanden in deze map worden met de server gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>De proxyserver vereist aanmelding</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisatietaken</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Uitgesloten bestanden</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Geen toegangsrechten</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation>Quillmere op de server is te oud om met deze computer samen te werken. Vraag de serverbeheerder om Quillmere bij te werken.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation>U kunt het installatieprogramma op elk moment opnieuw uitvoeren. Klik op ‘Voltooien’ om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>De verbinding met de server is instabiel.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Er is al een nieuwere versie van Quillmere geïnstalleerd. Verwijder eerst de nieuwere versie om deze versie te installeren.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klik op ‘Herstellen’ om de installatie van [ProductName] te herstellen. Klik op ‘Terug’ om uw keuzes te controleren of op ‘Annuleren’ om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation>Sommige instellingen zijn niet opgeslagen. Instellingen opslaan?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Pictogramoverlays op bestanden</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation>Deze map wordt al gebruikt door een ander synchronisatieprogramma. Kies een andere map om conflicten te voorkomen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Incompatibele versie</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Synchronisatiemap wijzigen</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation>Voer een volledige bestandsnaam zonder mappad in, bijvoorbeeld ‘thumbs.db’.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation>[DlgTitleFont]Het installatieprogramma is door een fout gestopt. De al doorgevoerde wijzigingen zijn ongedaan gemaakt.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>De installatiewizard installeert [ProductName] op uw computer. Klik op ‘Volgende’ om door te gaan of op ‘Annuleren’ om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synchronisatieprobleem</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Lees de volgende licentieovereenkomst zorgvuldig.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Map niet leeg</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation>Een versleutelde verbinding (TLS) gebruiken</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Sommige bestanden die moeten worden bijgewerkt, zijn in gebruik.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Er is een nieuwe versie van Quillmere beschikbaar. Klik hier om bij te werken.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Het downloaden van ‘%1’ is geannuleerd.</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>De ingevoerde waarde is ongeldig. Controleer de waarde en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Dit bestand heeft nog geen eerdere versies. Wijzig het bestand en laat het synchroniseren om er een te maken.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Verbinding verbreken</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Quillmere wordt geïnitialiseerd...</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Nu starten</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Synchronisatie pauzeren</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Samenvoegmodus</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere is gereed.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>Deze versie kan niet worden gedownload. Controleer de verbinding met de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Instellingen worden toegepast...</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation>Bestanden die van synchronisatie zijn uitgesloten</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Gemaakt</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>De Quillmere-service is uitgeschakeld op de server. Vraag de serverbeheerder om deze in te schakelen.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation>Te synchroniseren gedeelde mappen kiezen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Ve&amp;rwijderen</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Bezig met uploaden...</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Vraag de serverbeheerder om Quillmere op de server bij te werken als u selectieve synchronisatie wilt gebruiken.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Er zijn geen instellingen gewijzigd.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Bestanden in gebruik</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Herstelt fouten in de installatie van [ProductName] door ontbrekende of beschadigde bestanden en snelkoppelingen terug te zetten.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Uitgesloten bestandsextensies</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>De synchronisatie is gepauzeerd.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Welkom terug bij de installatiewizard van [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation>De schijf met de synchronisatiemap is niet aangekoppeld. Koppel de schijf aan en hervat daarna de synchronisatie. De map staat onder ‘Synchronisatietaken’.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation>De schijf met de synchronisatiemap is vol.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Adres van de proxyserver</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Opnieuw &amp;proberen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>Ne&amp;geren</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation>Er bestaat op deze computer al een map met deze naam. De bestanden in deze map samenvoegen met die op de server?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere houdt uw bestanden op uw computers en uw server gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>De geïnstalleerde onderdelen wijzigen</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Welkom bij Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Quillmere wordt bijgewerkt...</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisatiemodus</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Voer een domeinnaam, een IP-adres of een server-ID in.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>Er kan geen deellink worden gemaakt voor dit bestand. Controleer de verbinding met de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation>Bestanden die worden gesynchroniseerd: %1</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Opnieuw verbinden</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Uw bestanden, overal gesynchroniseerd</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Bestemming</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>De installatiewizard voert de gekozen wijzigingen door.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systeemstandaard</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation>De mappen en bestanden die u hebt uitgevinkt, worden van deze computer verwijderd. Op de server blijven ze behouden.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>Het installatieprogramma heeft alle gekozen wijzigingen doorgevoerd. Klik op ‘Voltooien’ om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klik op ‘Verwijderen’ om [ProductName] van uw computer te verwijderen. Klik op ‘Terug’ om uw keuzes te controleren of op ‘Annuleren’ om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Geen ruimte meer</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Verbinding verbroken</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation>U hebt al uw ruimte op de server gebruikt.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>De verbinding met de server verbreken?\nUw bestanden blijven op deze computer en op de server behouden, maar worden niet meer gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation>Er is een probleem met de relayservice. Probeer het later opnieuw of maak via het IP-adres verbinding met de server.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server-ID</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Uitgesloten bestandsnamen</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradres</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation>De schijf met de synchronisatiemap is vol. Maak er ruimte op vrij om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Te synchroniseren mappen</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation>Synchronisatiemap kiezen</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Verbindingsinstellingen</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selectieve synchronisatie</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation>U hebt al uw ruimte op de server gebruikt. Verwijder bestanden die u niet nodig hebt of vraag de serverbeheerder om meer ruimte.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Nadat u [ProductName] hebt gestart, vindt u het programma in het systeemvak.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>De toepassingen geopend &amp;laten en de computer later opnieuw opstarten</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>De volgende proxyserver gebruiken</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation>Dit bestand is zowel op deze computer als op de server gewijzigd. Beide kopieën staan onder verschillende namen in dezelfde map. Vergelijk ze en behoud de kopie die u nodig hebt.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation>Al uw bestanden op elke computer, bewaard op uw eigen server</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Bureaubladmeldingen tonen</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation>De volgende toepassingen gebruiken bestanden die door het installatieprogramma moeten worden bijgewerkt. Sluit deze toepassingen en klik daarna op ‘Opnieuw proberen’. Klik op ‘Negeren’ om door te gaan zonder ze te sluiten. Klik op ‘Afsluiten’ om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>De server is niet bereikbaar. Controleer de netwerkverbinding en het serveradres en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokale synchronisatiemap</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Bestanden die met een vermelding in deze lijst overeenkomen, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation>Verbinding bewerken...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>De volgende toepassingen gebruiken bestanden die door het installatieprogramma moeten worden bijgewerkt. Kies of het installatieprogramma deze toepassingen moet sluiten. Als ze geopend blijven, moet u de computer opnieuw opstarten om de wijzigingen te voltooien.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>De installatiewizard is gereed om met het herstellen te beginnen.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Quillmere openen</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Start %1 opnieuw om de nieuwe taalinstellingen toe te passen.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Pictogramoverlays tonen op uitgesloten bestanden</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Bezig met laden...</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation>Het maximale aantal gesynchroniseerde gedeelde mappen is bereikt: %1. Stop de synchronisatie van een gedeelde map voordat u een andere toevoegt.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation>Deze synchronisatietaak verwijderen?\nDe bijbehorende bestanden blijven op deze computer en op de server behouden, maar worden niet meer gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Quillmere wordt gestart...</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere kan niet worden bijgewerkt. Uw eerdere versie is behouden. Start de computer opnieuw op en probeer het opnieuw. Meer informatie staat in ‘~/.Quillmere/log’.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation>Namen uitsluiten die met een punt beginnen</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>De server heeft geen vrije schijfruimte meer. Vraag de serverbeheerder om ruimte vrij te maken.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Licentieovereenkomst</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>‘%1’ is gedownload.</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>De versies van dit bestand kunnen niet worden weergegeven. Controleer de verbinding met de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Verbonden met de server.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation>{\VerdanaBold13}Het installatieprogramma van [ProductName] is klaar</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokaal netwerk</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>Geen proxyserver gebruiken</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Gedeelde map niet gevonden</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Volgende</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>‘%1’ kan niet worden gedownload. Controleer de verbinding met de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Bestandswijzigingen worden gevolgd...</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Gedeelde map</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation>Quillmere-instellingen</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>De deellink kan niet worden verwijderd. Controleer de verbinding met de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation>Het certificaat van de server kan niet worden geverifieerd: het kan zijn verlopen, bij een andere server horen of van een onbekende uitgever afkomstig zijn. Vraag de serverbeheerder om het certificaat te controleren.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation>Dit is niet de server waarmee deze computer was verbonden. Controleer het serveradres of maak opnieuw verbinding.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] heeft geen onderdelen die afzonderlijk kunnen worden gewijzigd.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Het adres of de poort van de proxyserver ontbreekt. Voer beide in en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>De gebruikersnaam ontbreekt. Voer een gebruikersnaam in.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Link verwijderen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>Ik ga &amp;akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Bijgewerkt: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Verbindingen beheren</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation>Met een andere server verbinden...</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Pictogramoverlays tonen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation>[DlgTitleFont]Wijzigingen in [ProductName] worden doorgevoerd</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Service uitgeschakeld</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchroniseren</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>Stoppen met het synchroniseren van deze gedeelde map?\nDe bestanden die al op deze computer staan, blijven behouden.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installeren</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation>Uit te sluiten bestanden</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Statusdetails</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>Ik ga &amp;niet akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation>Er is iets misgegaan. Probeer het opnieuw en neem contact op met de serverbeheerder als het probleem zich blijft voordoen. Meer informatie staat in ‘~/.Quillmere/log’.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Systeemvakpictogrammen</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>De map is alleen-lezen. Kies een map waarin u kunt schrijven.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Terug</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinstellingen</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation>U bent niet als beheerder aangemeld, waardoor Quillmere mogelijk niet volledig wordt geïnstalleerd. Doorgaan?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Via het pictogram in het systeemvak kunt u op elk moment de synchronisatiestatus bekijken of de instellingen wijzigen.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Deellink gemaakt</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist. Controleer beide en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Gereed om [ProductName] te herstellen</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>De gedeelde map ‘%1’ is nu beschikbaar. Klik hier om deze te synchroniseren.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Verbindingsgegevens</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Hiermee kunt u kiezen welke onderdelen worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mapnaam</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>Map is een aankoppelpunt</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation>Andere map kiezen...</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Alleen downloaden</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Herstellen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ve&amp;rwijderen</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale bestandsgrootte</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Voer het serveradres in en het account dat u op de server gebruikt.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation>Op het serveradres is een andere server gevonden.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Verbinding met de server wordt gemaakt...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>Create share link</source>
        <translation>Deellink maken</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>De server heeft de gebruikersnaam of het wachtwoord niet geaccepteerd. Bewerk de verbinding en voer beide opnieuw in.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Onlangs bijgewerkte bestanden</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>De proxyinstellingen van het systeem gebruiken</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation>Map wijzigen...</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Bezig met downloaden...</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation>Bestand vergrendeld</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Bezig met voorbereiden...</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation>Bestanden worden gesynchroniseerd...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Gereed om [ProductName] te installeren</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Gebruikersnaam en wachtwoord worden gecontroleerd...</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation>Wacht terwijl de installatiewizard de wijzigingen in [ProductName] doorvoert. Dit kan enkele minuten duren.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Beheren</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>De server-ID is ongeldig. Controleer de server-ID en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Synchronisatiemap openen</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Bij dubbelklikken op het systeemvakpictogram</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>De synchronisatie van deze gedeelde map kan niet worden ingeschakeld. Controleer uw toegangsrechten op de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>Het delen van bestanden via de relay is uitgeschakeld op de server. Vraag de serverbeheerder om dit in te schakelen.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Synchronisatie hervatten</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>De deellink is naar het klembord gekopieerd.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation>De lokale synchronisatiemap is niet gevonden. Zet de map terug of kies een andere map. Het pad staat onder ‘Synchronisatietaken’.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Quillmere bijwerken</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation>Taak toevoegen...</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation>De gedeelde map is niet aangekoppeld op de server. Vraag de serverbeheerder om de map aan te koppelen. De naam staat onder ‘Gedeelde mappen’.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation>De server heeft een onverwacht antwoord verzonden. Werk Quillmere op deze computer bij en vraag de serverbeheerder om Quillmere op de server bij te werken. Meer informatie staat in ‘~/.Quillmere/log’.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroverzicht</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>De synchronisatie is door een probleem gestopt. Klik hier voor meer informatie.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Voer een grootte van maximaal %1&#xa0;MB in.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Bestanden worden gecontroleerd...</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Er wordt geprobeerd te synchroniseren...</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Klik op ‘Installeren’ om met de installatie van [ProductName] te beginnen. Klik op ‘Terug’ om uw keuzes te controleren of op ‘Annuleren’ om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation>{\VerdanaBold13}Het installatieprogramma van [ProductName] is afgebroken</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>De map is niet leeg. Voeg de bestanden in deze map samen met die op de server of kies een andere map.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Deze map wordt geïndexeerd. De bestanden verschijnen zodra het indexeren is voltooid.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>U kunt de bestanden in deze gedeelde map openen, maar wijzigingen die u aanbrengt, worden niet geüpload.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netwerkinstellingen</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation>Deze map wordt al met een andere gedeelde map gesynchroniseerd. Kies een andere map.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>De server heeft geen vrije schijfruimte meer.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Relay via server-ID</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Kies wat u wilt doen.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}Het installatieprogramma van [ProductName] is voortijdig beëindigd</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere is al actief.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welkom</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Quillmere starten wanneer ik me bij deze computer aanmeld</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation>Alle bestanden uit beide mappen blijven behouden. Als twee versies van een bestand verschillen, blijven beide onder verschillende namen behouden.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>De installatie herstellen</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation>Synchronisatie ingeschakeld</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation>Quillmere kan niet worden gestart. Start de computer opnieuw op en start daarna Quillmere opnieuw. Meer informatie staat in ‘~/.Quillmere/log’.</translation>
    </message>
    <message>
        <source>Cancel [ProductName] setup?</source>
        <translation>Het installatieprogramma van [ProductName] afbreken?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Toch doorgaan</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] wijzigen, herstellen of verwijderen</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere is ingesteld</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Geavanceerde instellingen</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation>Versies bekijken...</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Wijzigen</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation>De verbinding van deze computer met de server is verbroken. Maak opnieuw verbinding om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Bezig met detecteren...</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certificaatwaarschuwing</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation>De relayservice is niet bereikbaar. Controleer de internetverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Verwijdert [ProductName] van uw computer.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>‘%1’ wordt gedownload...</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>V&amp;oltooien</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Map is alleen-lezen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]U hebt het installatieprogramma afgebroken. Uw computer is niet gewijzigd.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>Het poortnummer is ongeldig. Voer een getal in van 1 tot en met 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere kan wijzigingen op een netwerkschijf niet volgen. Kies een map op een lokale schijf.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>De installatie verwijderen</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Directe verbinding</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation>De schijf op de server waarop deze map staat, is niet aangekoppeld. Vraag de serverbeheerder om de schijf aan te koppelen. De map staat onder ‘Synchronisatietaken’.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation>Deze versie van Quillmere is al geïnstalleerd. Opnieuw installeren?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation>Quillmere op deze computer is te oud om met de server samen te werken. Werk Quillmere bij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation>Quillmere op de server is te oud om met deze computer samen te werken.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Uitgeschakeld</translation>
    </message>
</context>
</TS>
